// A plan file loaded and run, as a fresh program would.
#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "plan/Plan.h"
#include "simulation/Ergebnistexte.h"
#include "simulation/RunSimulation.h"
#include "util/Meldung.h"

namespace tarvelin {

struct Planlauf {
    /// The name of the file without its folders.
    std::string Name;
    tarvelin::Plan Plan;
    tarvelin::Lauf Lauf;
    Ergebnistexte Texte;
    /// The whole file was read, and the run was called.
    bool Geladen = false;
    /// The run got past its checks of the inputs.
    bool Gelaufen = false;
    std::vector<Meldung> Meldungen;

    /// Loads and runs the plan of a file. Messages go to `fehlerstrom` as they come.
    Planlauf(const std::filesystem::path& datei, std::ostream& fehlerstrom);
};

}  // namespace tarvelin
