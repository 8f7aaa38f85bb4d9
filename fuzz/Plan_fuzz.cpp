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

void Drucke(const PlanRun& lauf) {
    std::ostringstream strom;
    WriteText(strom, lauf);
    WriteCsvHeader(strom);
    WriteCsvRows(strom, lauf);
    strom << JsonText(lauf) << RefreshWeekday(lauf.plan.parameters).hint
          << PointsWithStockText(lauf.run.state);
    for (const auto& bauzeit : lauf.run.LV_Bauzeiten) {
        strom << DueStarts(lauf.run.LV_Bauzeiten, bauzeit.start, "0")
              << DueSleepEnds(lauf.plan.LV_Schlafzeiten, bauzeit.start);
    }
    Verlange(lauf.hasRun || !lauf.messages.empty(), "a plan runs or says why not");
}

}  // namespace
}  // namespace tarvelin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    using namespace tarvelin;
    const std::string_view bytes(reinterpret_cast<const char*>(daten), laenge);
    const PlanRun lauf("plan.tvf", IniFile(bytes));
    Drucke(lauf);
    if (lauf.loaded && lauf.plan.LV_Bauliste.Rows().size() <= kHoechstzahl) {
        const Finding befund = CheckLaws(lauf.plan);
        Verlange(befund.empty(), "the laws of every plan", befund);
    }
    return 0;
}
