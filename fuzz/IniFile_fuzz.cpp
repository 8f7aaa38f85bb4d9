// Any bytes as a profile file: what a write may change, and what comes back from it.
#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "FuzzInput.h"
#include "PlanLaws.h"
#include "persistence/IniFile.h"
#include "util/Codepage1252.h"
#include "util/Utf16.h"

namespace tarvelin {
namespace {

using Zeilen = std::vector<std::string_view>;

/// The mark of a file's encoding; empty for a file without one.
std::string_view Bytemarke(std::string_view bytes) {
    for (const std::string_view marke : {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"}) {
        if (bytes.starts_with(marke)) {
            return marke;
        }
    }
    return {};
}

std::optional<ByteOrder> Utf16(std::string_view bytes) {
    const std::string_view marke = Bytemarke(bytes);
    if (marke.size() != 2) {
        return std::nullopt;
    }
    return marke.front() == '\xFF' ? ByteOrder::LittleEndian : ByteOrder::BigEndian;
}

/// What stands behind the mark of a file, in 8 bits.
std::string Inhalt(std::string_view bytes) {
    const auto folge = Utf16(bytes);
    bytes.remove_prefix(Bytemarke(bytes).size());
    return folge ? FromUtf16(bytes, *folge) : std::string(bytes);
}

/// The lines of a text with their ends, LF, CR LF or CR.
Zeilen ZeilenVon(std::string_view bytes) {
    Zeilen zeilen;
    while (!bytes.empty()) {
        std::size_t ende = bytes.find_first_of("\r\n");
        ende = ende == std::string_view::npos ? bytes.size() : ende + 1;
        ende += bytes.substr(ende - 1).starts_with("\r\n") ? 1U : 0U;
        zeilen.push_back(bytes.substr(0, ende));
        bytes.remove_prefix(ende);
    }
    return zeilen;
}

/// Whether the new line is the old one, or the old one with the end that it lacked.
bool IstGeblieben(std::string_view alt, std::string_view neu) {
    return neu == alt || (alt.find_first_of("\r\n") == std::string_view::npos &&
                          neu == std::string(alt) + "\r\n");
}

/// One line has another text, or one line or a section with one line has come in.
bool NurEineStelle(const Zeilen& alt, const Zeilen& neu) {
    std::size_t vorn = 0;
    while (vorn < alt.size() && vorn < neu.size() && IstGeblieben(alt[vorn], neu[vorn])) {
        ++vorn;
    }
    std::size_t hinten = 0;
    while (hinten < alt.size() - vorn && hinten < neu.size() - vorn &&
           alt[alt.size() - 1 - hinten] == neu[neu.size() - 1 - hinten]) {
        ++hinten;
    }
    const std::size_t weg = alt.size() - vorn - hinten;
    const std::size_t dazu = neu.size() - vorn - hinten;
    return weg == 0 ? dazu <= 2 : weg == 1 && dazu == 1;
}

/// Names of sections and keys that stand in a file, as near as a glance finds them.
std::vector<std::pair<std::string, std::string>> Namen(const Zeilen& zeilen, bool utf16) {
    const auto name = [utf16](std::string_view text) {
        return From1252(utf16 ? To1252(text) : std::string(text));
    };
    std::vector<std::pair<std::string, std::string>> namen;
    std::string section;
    for (const std::string_view zeile : zeilen) {
        if (zeile.starts_with('[')) {
            section = name(zeile.substr(1, zeile.find(']') - 1));
        } else if (const auto gleich = zeile.find('='); gleich != std::string_view::npos) {
            namen.emplace_back(section, name(zeile.substr(0, gleich)));
        }
    }
    return namen;
}

std::string Klein(std::string_view text) {
    std::string klein(text);
    std::ranges::transform(klein, klein.begin(), [](char z) {
        return z >= 'A' && z <= 'Z' ? static_cast<char>(z - 'A' + 'a') : z;
    });
    return klein;
}

bool HatRand(std::string_view bytes) {
    constexpr std::string_view kBlanks = " \t\v\f";
    return !bytes.empty() && (kBlanks.find(bytes.front()) != std::string_view::npos ||
                              kBlanks.find(bytes.back()) != std::string_view::npos);
}

/// Names as the program has them: of one line, without blanks around and without marks.
bool IstName(std::string_view bytes) {
    return !bytes.empty() && !HatRand(bytes) &&
           bytes.find_first_of(std::string_view("[]=;\r\n\0", 7)) == std::string_view::npos;
}

void PruefeSchreiben(const std::string& datei, const std::string& section, const std::string& key,
                     const std::string& wert) {
    IniFile profil(datei);
    profil.WriteINI(section, key, From1252(wert));
    const std::string nachher = profil.Bytes();
    const std::string inhalt = Inhalt(datei);
    const Zeilen zeilen = ZeilenVon(inhalt);
    Verlange(Bytemarke(nachher) == Bytemarke(datei), "the mark of the encoding stays", nachher);
    Verlange(NurEineStelle(zeilen, ZeilenVon(Inhalt(nachher))), "a write changes one line",
             nachher);

    const IniFile vorher(datei);
    const IniFile gelesen(nachher);
    for (const auto& [s, k] : Namen(zeilen, Utf16(datei).has_value())) {
        const bool selbst = Klein(s) == Klein(section) && Klein(k) == Klein(key);
        Verlange(selbst || gelesen.ReadINI(s, k, "-") == vorher.ReadINI(s, k, "-") || HatRand(s) ||
                     HatRand(k),
                 "a write leaves the other keys", k);
    }
    Verlange(gelesen.ReadINI(section, key, "-") == profil.ReadINI(section, key, "-"),
             "the file holds what the memory holds", nachher);
    Verlange(!ComesBack(From1252(wert)) || gelesen.ReadINI(section, key, "-") == From1252(wert),
             "a plain value comes back", gelesen.ReadINI(section, key, "-"));
    profil.WriteINI(section, key, From1252(wert));
    Verlange(profil.Bytes() == nachher, "the same write again changes nothing", profil.Bytes());
}

/// The same file in 16 bits is changed and read alike.
void PruefeUtf16(const std::string& datei, const std::string& section, const std::string& key,
                 const std::string& wert) {
    for (const auto folge : {ByteOrder::LittleEndian, ByteOrder::BigEndian}) {
        const auto in16 = [&](const std::string& bytes) {
            return ToUtf16("\xEF\xBB\xBF" + From1252(bytes), folge);
        };
        IniFile acht(datei);
        IniFile sechzehn(in16(datei));
        Verlange(sechzehn.ReadINI(section, key, "-") == acht.ReadINI(section, key, "-"),
                 "16 bits are read like 8", sechzehn.ReadINI(section, key, "-"));
        acht.WriteINI(section, key, From1252(wert));
        sechzehn.WriteINI(section, key, From1252(wert));
        Verlange(sechzehn.Bytes() == in16(acht.Bytes()), "16 bits are written like 8",
                 sechzehn.Bytes());
    }
}

}  // namespace
}  // namespace tarvelin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    using namespace tarvelin;
    Eingabe eingabe(daten, laenge);
    const std::string section = eingabe.NimmTeil();
    const std::string key = eingabe.NimmTeil();
    const std::string wert = eingabe.NimmTeil();
    std::string datei(eingabe.Rest());
    if (Utf16(datei)) {
        datei.resize(datei.size() - datei.size() % 2);
    }
    const IniFile profil(eingabe.Rest());
    Verlange(profil.Bytes() == datei, "a profile keeps its bytes", datei);
    Verlange(To1252(profil.ReadINI(section, key, From1252(wert))).size() <= 255,
             "a value is 255 at most");
    Verlange(To1252(From1252(datei)) == datei, "the code page loses no byte", datei);
    static_cast<void>(From1252(To1252(datei)));
    if (IstName(section) && IstName(key)) {
        PruefeSchreiben(datei, From1252(section), From1252(key), wert);
        if (Bytemarke(datei).empty()) {
            PruefeUtf16(datei, From1252(section), From1252(key), wert);
        }
    }
    return 0;
}
