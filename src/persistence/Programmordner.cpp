// Choice of the folder and the copies for a user of an installed program.
#include "persistence/Programmordner.h"

#include <algorithm>

#include "persistence/Autosave.h"
#include "persistence/Dateiersatz.h"

namespace tarvelin {

namespace fs = std::filesystem;

namespace {

/// False if there is no room for the file.
bool KopiereFehlende(const fs::path& von, const fs::path& nach) {
    std::error_code fehler;
    if (fs::exists(nach, fehler)) {
        return true;
    }
    constexpr std::size_t kHoechstgroesse = std::size_t{16} << 20U;
    const auto bytes = LiesDatei(von, kHoechstgroesse, Platte());
    return !bytes || ErsetzeDatei(nach, *bytes);
}

/// Whether the folder lies there afterwards, and had room for all files.
bool ErgaenzeOrdner(const fs::path& von, const fs::path& nach) {
    std::error_code fehler;
    fs::create_directories(nach, fehler);
    bool ganz = fs::is_directory(nach, fehler);
    for (fs::recursive_directory_iterator eintrag(von, fehler), ende; !fehler && eintrag != ende;
         eintrag.increment(fehler)) {
        const fs::path ziel = nach / eintrag->path().lexically_relative(von);
        if (eintrag->is_directory(fehler)) {
            fs::create_directories(ziel, fehler);
        } else {
            ganz = KopiereFehlende(eintrag->path(), ziel) && ganz;
        }
        fehler.clear();
    }
    return ganz;
}

/// Whether there was room for all that is ours.
bool RichteEin(const fs::path& quelle, const fs::path& ordner) {
    const bool bilder = ErgaenzeOrdner(quelle / "img", ordner / "img");
    const bool klaenge = ErgaenzeOrdner(quelle / "mfx", ordner / "mfx");
    std::error_code fehler;
    fs::create_directories(ordner / "saves", fehler);
    const fs::path starterplan = fs::path("saves") / "basic.tvf";
    const bool plan = fs::exists(ordner / "config.cfg", fehler) ||
                      !fs::exists(quelle / starterplan, fehler) ||
                      KopiereFehlende(quelle / starterplan, ordner / starterplan);
    return bilder && klaenge && plan;
}

bool HatPlaene(const fs::path& ordner) {
    std::error_code fehler;
    const fs::directory_iterator dateien(ordner / "saves", fehler);
    // The starter plan alone is ours.
    return !fehler && std::any_of(begin(dateien), end(dateien), [](const auto& datei) {
        return datei.path().filename() != "basic.tvf";
    });
}

}  // namespace

std::vector<fs::path> Programmordner::Gesperrte(bool haelt_ein_anderer) const {
    if (!KannBehalten) {
        return {Ordner};
    }
    if (!haelt_ein_anderer) {
        return {};
    }
    auto gesperrte = Autosave(Ordner).Dateien();
    gesperrte.push_back(Ordner / "config.cfg");
    return gesperrte;
}

Programmordner BestimmeProgrammordner(const fs::path& ordner_des_programms,
                                      const fs::path& nutzerordner) {
    std::error_code fehler;
    const bool mit_daten = fs::is_directory(ordner_des_programms / "img", fehler);
    if (mit_daten && Platte().IstBeschreibbar(ordner_des_programms)) {
        return {.Ordner = ordner_des_programms};
    }
    const fs::path quelle = mit_daten ? ordner_des_programms
                                      : ordner_des_programms.parent_path() / "share" / "tarvelin";
    if (nutzerordner.empty()) {
        return {.Ordner = quelle, .KannBehalten = false};
    }
    // Who has plans there keeps them in sight, whatever has no room beside them.
    const bool hatPlaene = HatPlaene(nutzerordner);
    const bool kannBehalten = RichteEin(quelle, nutzerordner) &&
                              Platte().IstBeschreibbar(nutzerordner) &&
                              Platte().IstBeschreibbar(nutzerordner / "saves");
    return {.Ordner = kannBehalten || hatPlaene ? nutzerordner : quelle,
            .KannBehalten = kannBehalten};
}

}  // namespace tarvelin
