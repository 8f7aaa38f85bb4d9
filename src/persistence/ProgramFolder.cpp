// Choice of the folder and the copies for a user of an installed program.
#include "persistence/ProgramFolder.h"

#include <algorithm>

#include "persistence/AtomicWrite.h"
#include "persistence/Autosave.h"

namespace tarvelin {

namespace fs = std::filesystem;

namespace {

/// False if there is no room for the file.
bool KopiereFehlende(const fs::path& von, const fs::path& nach) {
    const auto art = Platte().Sieh(nach);
    if (art && *art != Dateisystem::Art::Nichts) {
        return true;
    }
    constexpr std::size_t kHoechstgroesse = std::size_t{16} << 20U;
    const auto bytes = LiesDatei(von, kHoechstgroesse, Platte());
    return !bytes || ErsetzeDatei(nach, *bytes);
}

bool IstOrdner(const fs::path& pfad) {
    return Platte().Sieh(pfad) == Dateisystem::Art::Ordner;
}

/// Whether the folder lies there afterwards, and had room for all that is in the other one.
bool ErgaenzeOrdner(const fs::path& von, const fs::path& nach) {
    bool ganz = Platte().LegeOrdnerAn(nach);
    for (const fs::path& eintrag : Platte().Eintraege(von)) {
        const fs::path ziel = nach / eintrag.filename();
        ganz =
            (IstOrdner(eintrag) ? ErgaenzeOrdner(eintrag, ziel) : KopiereFehlende(eintrag, ziel)) &&
            ganz;
    }
    return ganz;
}

/// Whether there was room for all that is ours.
bool RichteEin(const fs::path& quelle, const fs::path& ordner) {
    const bool bilder = ErgaenzeOrdner(quelle / "img", ordner / "img");
    const bool klaenge = ErgaenzeOrdner(quelle / "mfx", ordner / "mfx");
    const bool plaene = Platte().LegeOrdnerAn(ordner / "saves");
    const fs::path starterplan = fs::path("saves") / "basic.tvf";
    const bool plan = FileExists(ordner / "config.cfg") || !FileExists(quelle / starterplan) ||
                      KopiereFehlende(quelle / starterplan, ordner / starterplan);
    return bilder && klaenge && plaene && plan;
}

bool HatPlaene(const fs::path& ordner) {
    // The starter plan alone is ours.
    return std::ranges::any_of(Platte().Eintraege(ordner / "saves"),
                               [](const auto& datei) { return datei.filename() != "basic.tvf"; });
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

fs::path Planordner(const fs::path& programmordner, const Dateisystem& system) {
    fs::path ordner = programmordner / "saves";
    static_cast<void>(system.LegeOrdnerAn(ordner));
    while (system.Sieh(ordner) != Dateisystem::Art::Ordner && ordner.has_relative_path()) {
        ordner = ordner.parent_path();
    }
    return ordner;
}

Programmordner BestimmeProgrammordner(const fs::path& ordner_des_programms,
                                      const fs::path& nutzerordner) {
    const bool mit_daten = IstOrdner(ordner_des_programms / "img");
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
