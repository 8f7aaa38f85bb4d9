// Loading and running for the console.
#include "console/Planlauf.h"

#include <utility>

#include "console/Meldungsliste.h"
#include "persistence/Planablage.h"

namespace tarvelin {

namespace {

std::string Dateiname(const std::filesystem::path& datei) {
    const auto name = datei.filename().u8string();
    return {name.begin(), name.end()};
}

}  // namespace

Planlauf::Planlauf(const std::filesystem::path& datei, std::ostream& fehlerstrom)
    : Planlauf(Dateiname(datei), Profil::Lade(datei), fehlerstrom) {}

Planlauf::Planlauf(std::string name, const std::optional<Profil>& profil, std::ostream& fehlerstrom)
    : Name(std::move(name)) {
    Meldungsliste meldungen(fehlerstrom);
    if (profil) {
        Geladen = LadePlan(*profil, Plan, Lauf.Planet, meldungen);
    } else {
        meldungen.Zeige(Ladefehler());
    }
    Gelaufen = Geladen && RunSimulation(Plan, Lauf, meldungen, false) == Laufausgang::Gelaufen;
    if (Gelaufen) {
        Texte.NachLauf(Lauf.Planet.Globale);
    }
    Meldungen = meldungen.Meldungen();
}

}  // namespace tarvelin
