// Any bytes as a plan file: loaded, run and printed in every form, under the laws of every plan.
#include <sstream>

#include "FuzzInput.h"
#include "PlanLaws.h"
#include "console/RunReport.h"
#include "persistence/PlanFile.h"
#include "simulation/DueAlarms.h"

namespace tarvelin {
namespace {

/// The longest list that the laws are tried on; they build it anew after each row.
constexpr std::size_t kHoechstzahl = 60;

void Drucke(const Planlauf& lauf) {
    std::ostringstream strom;
    SchreibeText(strom, lauf);
    SchreibeCsvKopf(strom);
    SchreibeCsv(strom, lauf);
    strom << JsonText(lauf) << RefreshWeekday(lauf.Plan.parameters).hint
          << PointsWithStockText(lauf.Lauf.state);
    for (const auto& bauzeit : lauf.Lauf.LV_Bauzeiten) {
        strom << DueStarts(lauf.Lauf.LV_Bauzeiten, bauzeit.start, "0")
              << DueSleepEnds(lauf.Plan.LV_Schlafzeiten, bauzeit.start);
    }
    Verlange(lauf.Gelaufen || !lauf.Meldungen.empty(), "a plan runs or says why not");
}

}  // namespace
}  // namespace tarvelin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    using namespace tarvelin;
    const std::string_view bytes(reinterpret_cast<const char*>(daten), laenge);
    const Planlauf lauf("plan.tvf", Profil(bytes));
    Drucke(lauf);
    if (lauf.Geladen && lauf.Plan.LV_Bauliste.Rows().size() <= kHoechstzahl) {
        const Befund befund = PruefeGesetze(lauf.Plan);
        Verlange(befund.empty(), "the laws of every plan", befund);
    }
    return 0;
}
