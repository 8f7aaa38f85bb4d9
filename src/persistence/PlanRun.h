// A plan file loaded and run, as a fresh program would.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "persistence/IniFile.h"
#include "plan/Plan.h"
#include "simulation/ResultTexts.h"
#include "simulation/RunSimulation.h"
#include "simulation/RunTrace.h"
#include "util/Message.h"

namespace tarvelin {

struct Planlauf {
    /// The name of the file without its folders.
    std::string Name;
    tarvelin::Plan Plan;
    tarvelin::LastRun Lauf;
    ResultTexts Texte;
    /// The whole file was read, and the run was called.
    bool Geladen = false;
    /// The run got past its checks of the inputs.
    bool Gelaufen = false;
    std::vector<Message> Meldungen;

    /// The same run once more with all that charts and comparisons show; `Gelaufen` holds.
    [[nodiscard]] RunTrace Abgespielt() const;

    /// Loads and runs the plan of a file.
    explicit Planlauf(const std::filesystem::path& datei);
    /// The same with what a file of that name held: nothing, if it couldn't be read.
    Planlauf(std::string name, const std::optional<Profil>& profil);
};

}  // namespace tarvelin
