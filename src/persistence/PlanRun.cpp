// Loading and running without a window.
#include "persistence/PlanRun.h"

#include <utility>

#include "persistence/PlanFile.h"

namespace tarvelin {

namespace {

std::string Dateiname(const std::filesystem::path& datei) {
    const auto name = datei.filename().u8string();
    return {name.begin(), name.end()};
}

}  // namespace

RunTrace Planlauf::Abgespielt() const {
    return TraceRun(Plan.LV_Bauliste.Orders().All(), Lauf.conditions);
}

Planlauf::Planlauf(const std::filesystem::path& datei)
    : Planlauf(Dateiname(datei), Profil::Lade(datei)) {}

Planlauf::Planlauf(std::string name, const std::optional<Profil>& profil) : Name(std::move(name)) {
    MessageCollector meldungen(Meldungen);
    if (!profil) {
        meldungen.Show(Ladefehler());
        return;
    }
    Geladen = LadePlan(*profil, Plan, Lauf.conditions, meldungen);
    if (!Geladen) {
        return;
    }
    const auto bedingungen = ParseRunConditions(Plan);
    if (const auto* const absage = std::get_if<Message>(&bedingungen)) {
        meldungen.Show(*absage);
        return;
    }
    Lauf.ResetSimulation(std::get<RunConditions>(bedingungen));
    RunSimulation(Plan.LV_Bauliste.Orders().All(), Lauf, meldungen);
    Texte.AfterRun(Lauf.state);
    Gelaufen = true;
}

}  // namespace tarvelin
