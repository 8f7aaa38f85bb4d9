// Parsing and editing of profile files.
#include "persistence/IniFile.h"

#include <algorithm>
#include <array>
#include <utility>

#include "util/Codepage1252.h"

namespace tarvelin {

namespace {

constexpr std::string_view kZeilenende = "\r\n";
constexpr std::array<std::pair<std::string_view, std::optional<ByteOrder>>, 3> kBytemarken{
    {{"\xEF\xBB\xBF", std::nullopt},
     {"\xFF\xFE", ByteOrder::LittleEndian},
     {"\xFE\xFF", ByteOrder::BigEndian}}};
constexpr std::size_t kHoechstlaenge = 255;

std::string Klein(std::string_view text) {
    std::string klein(text);
    std::ranges::transform(klein, klein.begin(), [](char zeichen) {
        return zeichen >= 'A' && zeichen <= 'Z' ? static_cast<char>(zeichen - 'A' + 'a') : zeichen;
    });
    return klein;
}

std::string_view OhneRand(std::string_view text, std::string_view rand = " \t\v\f") {
    const auto anfang = text.find_first_not_of(rand);
    if (anfang == std::string_view::npos) {
        return {};
    }
    return text.substr(anfang, text.find_last_not_of(rand) - anfang + 1);
}

/// A line without its end and the blanks around it.
std::string_view Inhalt(std::string_view zeile) {
    while (zeile.ends_with('\n') || zeile.ends_with('\r')) {
        zeile.remove_suffix(1);
    }
    return OhneRand(zeile);
}

bool IstBeendet(std::string_view zeile) {
    return zeile.ends_with('\n') || zeile.ends_with('\r');
}

void Beende(std::string& zeile) {
    if (!IstBeendet(zeile)) {
        zeile += kZeilenende;
    }
}

/// The name of a section line, or nothing for another line.
std::optional<std::string_view> Sectionname(std::string_view inhalt) {
    if (!inhalt.starts_with('[')) {
        return std::nullopt;
    }
    inhalt.remove_prefix(1);
    return OhneRand(inhalt.substr(0, inhalt.find(']')));
}

/// Key and value of a key line, or nothing for another line.
std::optional<std::pair<std::string_view, std::string_view>> Schluesselzeile(
    std::string_view inhalt) {
    const auto gleich = inhalt.find('=');
    if (inhalt.starts_with(';') || gleich == std::string_view::npos) {
        return std::nullopt;
    }
    return std::pair(OhneRand(inhalt.substr(0, gleich)), OhneRand(inhalt.substr(gleich + 1)));
}

std::string_view OhneAnfuehrung(std::string_view wert) {
    const bool angefuehrt = wert.size() >= 2 && wert.front() == wert.back() &&
                            (wert.front() == '"' || wert.front() == '\'');
    return angefuehrt ? wert.substr(1, wert.size() - 2) : wert;
}

std::string_view BisNul(std::string_view wert) {
    return wert.substr(0, wert.find('\0'));
}

/// A default is cut by characters, as each would be one byte of the file.
std::string_view GekuerzterStandard(std::string_view utf8) {
    std::size_t zeichen = 0;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const bool beginntZeichen = (static_cast<unsigned char>(utf8[i]) & 0xC0U) != 0x80U;
        if (beginntZeichen && ++zeichen > kHoechstlaenge) {
            return BisNul(utf8.substr(0, i));
        }
    }
    return BisNul(utf8);
}

/// Takes the first line, with its end, off the bytes: LF, CR LF or CR.
std::string_view NimmZeile(std::string_view& bytes) {
    auto ende = std::min(bytes.find_first_of(kZeilenende), bytes.size());
    if (bytes.substr(ende).starts_with(kZeilenende)) {
        ++ende;
    }
    const std::string_view zeile = bytes.substr(0, ende + 1);
    bytes.remove_prefix(zeile.size());
    return zeile;
}

}  // namespace

Profil::Profil(std::string_view bytes) : m_abschnitte(1) {
    for (const auto& [marke, folge] : kBytemarken) {
        if (bytes.starts_with(marke)) {
            m_bytemarke = marke;
            m_utf16 = folge;
        }
    }
    bytes.remove_prefix(m_bytemarke.size());
    const std::string text = m_utf16 ? FromUtf16(bytes, *m_utf16) : std::string();
    std::string_view rest = m_utf16 ? text : bytes;
    while (!rest.empty()) {
        NimmZeileAuf(NimmZeile(rest));
    }
}

std::optional<Profil> Profil::Lade(const std::filesystem::path& datei, const Dateisystem& system) {
    const auto bytes = LiesDatei(datei, kHoechstgroesse, system);
    return bytes ? std::optional<Profil>(*bytes) : std::nullopt;
}

std::optional<Profil> Profil::LadeOderLeer(const std::filesystem::path& datei,
                                           const Dateisystem& system) {
    return system.Sieh(datei) == Dateisystem::Art::Nichts ? Profil("") : Lade(datei, system);
}

std::string Profil::Lies(std::string_view section, std::string_view key,
                         std::string_view standard) const {
    if (const Abschnitt* const abschnitt = Suche(section)) {
        const auto stelle = abschnitt->Stellen.find(Klein(To1252(key)));
        if (stelle != abschnitt->Stellen.end()) {
            const auto zeile = Schluesselzeile(Inhalt(abschnitt->Zeilen[stelle->second]));
            const std::string wert = Im1252(OhneAnfuehrung(zeile->second));
            return From1252(BisNul(std::string_view(wert).substr(0, kHoechstlaenge)));
        }
    }
    return std::string(GekuerzterStandard(standard));
}

std::optional<std::size_t> Profil::Zeilennummer(std::string_view section,
                                                std::string_view key) const {
    const Abschnitt* const gesuchter = Suche(section);
    if (gesuchter == nullptr) {
        return std::nullopt;
    }
    const auto stelle = gesuchter->Stellen.find(Klein(To1252(key)));
    if (stelle == gesuchter->Stellen.end()) {
        return std::nullopt;
    }
    std::size_t davor = 0;
    for (const Abschnitt& abschnitt : m_abschnitte) {
        if (&abschnitt == gesuchter) {
            break;
        }
        davor += abschnitt.Zeilen.size();
    }
    return davor + stelle->second + 1;
}

void Profil::Schreibe(std::string_view section, std::string_view key, std::string_view value) {
    Abschnitt& abschnitt = SucheOderMache(section);
    auto& zeilen = abschnitt.Zeilen;
    const std::string name = To1252(key);
    // A value that went on in another line would be one of its own there.
    const auto eineZeile = value.substr(0, value.find_first_of(std::string_view("\r\n\0", 3)));
    const std::string rest = "=" + AlsZeile(To1252(eineZeile)) + std::string(kZeilenende);
    const auto stelle = abschnitt.Stellen.find(Klein(name));
    if (stelle != abschnitt.Stellen.end()) {
        std::string& zeile = zeilen[stelle->second];
        zeile = std::string(Schluesselzeile(Inhalt(zeile))->first) + rest;
        return;
    }
    // Behind the last line that isn't blank; the section line itself never is.
    std::size_t ort = zeilen.size();
    while (Inhalt(zeilen[ort - 1]).empty()) {
        --ort;
    }
    Beende(zeilen[ort - 1]);
    zeilen.insert(zeilen.begin() + static_cast<std::ptrdiff_t>(ort), AlsZeile(name) + rest);
    abschnitt.Stellen.emplace(Klein(name), ort);
}

std::string Profil::Bytes() const {
    std::string text;
    for (const Abschnitt& abschnitt : m_abschnitte) {
        for (const std::string& zeile : abschnitt.Zeilen) {
            text += zeile;
        }
    }
    return m_bytemarke + (m_utf16 ? ToUtf16(text, *m_utf16) : text);
}

void Profil::NimmZeileAuf(std::string_view zeile) {
    const std::string_view inhalt = Inhalt(zeile);
    if (const auto name = Sectionname(inhalt)) {
        BeginneAbschnitt(Klein(Im1252(*name)));
    } else if (const auto paar = Schluesselzeile(inhalt); paar && m_abschnitte.back().Erreichbar) {
        Abschnitt& abschnitt = m_abschnitte.back();
        abschnitt.Stellen.emplace(Klein(Im1252(paar->first)), abschnitt.Zeilen.size());
    }
    m_abschnitte.back().Zeilen.emplace_back(zeile);
}

/// A section of a known name is out of reach, and so are all that follow it in such a row.
void Profil::BeginneAbschnitt(std::string_view name) {
    const bool neu = m_namen.emplace(name, m_abschnitte.size()).second;
    if (neu || m_abschnitte.back().Erreichbar) {
        m_abschnitte.emplace_back();
        m_abschnitte.back().Erreichbar = neu;
    }
}

const Profil::Abschnitt* Profil::Suche(std::string_view section) const {
    const auto ort = m_namen.find(Klein(To1252(section)));
    return ort == m_namen.end() ? nullptr : &m_abschnitte[ort->second];
}

Profil::Abschnitt& Profil::SucheOderMache(std::string_view section) {
    const std::string name = To1252(section);
    const auto ort = m_namen.find(Klein(name));
    if (ort != m_namen.end()) {
        return m_abschnitte[ort->second];
    }
    if (auto& letzte = m_abschnitte.back().Zeilen; !letzte.empty()) {
        Beende(letzte.back());
    }
    BeginneAbschnitt(Klein(name));
    m_abschnitte.back().Zeilen.push_back("[" + AlsZeile(name) + "]" + std::string(kZeilenende));
    return m_abschnitte.back();
}

std::string Profil::Im1252(std::string_view text) const {
    return m_utf16 ? To1252(text) : std::string(text);
}

std::string Profil::AlsZeile(std::string_view im1252) const {
    return m_utf16 ? From1252(im1252) : std::string(im1252);
}

}  // namespace tarvelin
