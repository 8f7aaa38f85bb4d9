// Loading and running for the console.
#include "console/Planlauf.h"

#include "console/Meldungsliste.h"
#include "persistence/Planablage.h"

namespace tarvelin {

Planlauf::Planlauf(const std::filesystem::path& datei, std::ostream& fehlerstrom) {
    const auto name = datei.filename().u8string();
    Name.assign(name.begin(), name.end());
    Meldungsliste meldungen(fehlerstrom);
    Geladen = LadePlan(datei, Plan, Lauf.Planet, meldungen);
    Gelaufen = Geladen && RunSimulation(Plan, Lauf, meldungen, false) == Laufausgang::Gelaufen;
    if (Gelaufen) {
        Texte.NachLauf(Lauf.Planet.Globale);
    }
    Meldungen = meldungen.Meldungen();
}

}  // namespace tarvelin
