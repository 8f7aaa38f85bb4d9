// Keys of the configuration file.
#include "persistence/Configuration.h"

#include <algorithm>

#include "persistence/AtomicWrite.h"
#include "persistence/IniFile.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

/// Where a path leads that a user wrote, with either separator: never by the current directory.
std::filesystem::path VomOrdner(const std::filesystem::path& ordner, std::string text) {
    const auto alsPfad = [&] {
        return std::filesystem::path(std::u8string(text.begin(), text.end()));
    };
    // Not every standard library knows that a name of a computer makes a path absolute.
    const bool vonRechner = std::filesystem::path::preferred_separator == '\\' &&
                            (text.starts_with("\\\\") || text.starts_with("//"));
    if (vonRechner || alsPfad().is_absolute()) {
        return alsPfad();
    }
    std::ranges::replace(text, '\\', '/');
    // A root that is left names no place of its own: a leading separator, or a drive alone.
    return ordner / alsPfad().relative_path();
}

}  // namespace

Konfiguration::Konfiguration(std::filesystem::path programmordner, const Dateisystem& system)
    : m_programmordner(std::move(programmordner)),
      m_datei(m_programmordner / "config.cfg"),
      m_system(system) {}

std::string Konfiguration::Lies(const Konfigurationskey& key) const {
    // Each time as the file holds it then: the user may have edited it.
    return Profil::Lade(m_datei, m_system)
        .value_or(Profil(""))
        .Lies(key.Section, key.Key, key.Standard);
}

bool Konfiguration::IstAn(const Konfigurationskey& key) const {
    return Lies(key) == "1";
}

Byte Konfiguration::Skinmodus() const {
    constexpr std::int64_t kHoechster = 255;
    return static_cast<Byte>(ParseWholeNumber(Lies(kMode), 0, kHoechster).value_or(1));
}

std::filesystem::path Konfiguration::Alertsound() const {
    const std::string datei = Lies(kAlertsound);
    return datei == kAlertsound.Standard ? m_programmordner / "mfx" / "alert.wav"
                                         : VomOrdner(m_programmordner, datei);
}

bool Konfiguration::Schreibe(const Werte& werte) const {
    auto profil = Profil::LadeOderLeer(m_datei, m_system);
    if (!profil) {
        return false;
    }
    for (const auto& [key, wert] : werte) {
        profil->Schreibe(key.Section, key.Key, wert);
    }
    return ErsetzeDatei(m_datei, profil->Bytes(), m_system);
}

Wiederherstellung EntscheideWiederherstellung(const Konfiguration& konfiguration) {
    const std::string immer = konfiguration.Lies(Konfiguration::kAlwaysDoSo);
    if (immer == "0") {
        return Wiederherstellung::Fragen;
    }
    return immer == "1" && konfiguration.IstAn(Konfiguration::kRecover)
               ? Wiederherstellung::Ungefragt
               : Wiederherstellung::Nicht;
}

}  // namespace tarvelin
