// A plan file loaded and run, as a fresh program would.
#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "persistence/Planablage.h"
#include "plan/Plan.h"
#include "simulation/Ergebnistexte.h"
#include "simulation/RunSimulation.h"
#include "util/Meldung.h"

namespace tarvelin {

struct Planlauf {
    /// The name of the file without its folders.
    std::string Name;
    Plan Geplant;
    Lauf Gelaufen;
    Ergebnistexte Texte;
    Ladeergebnis Ergebnis;
    std::vector<Meldung> Meldungen;

    /// Loads and runs the plan of a file. Messages go to `fehlerstrom` as they come.
    Planlauf(const std::filesystem::path& datei, std::ostream& fehlerstrom);
};

}  // namespace tarvelin
