// Fuzzes plan files: any bytes are loaded, run, printed in every form and checked against the laws
// of every plan.
#include <sstream>

#include "FuzzInput.h"
#include "PlanLaws.h"
#include "export/RunReport.h"
#include "persistence/PlanFile.h"
#include "simulation/DueAlarms.h"

namespace tarvelin {
namespace {

/// The longest list that the laws are checked for, as they rebuild it after each row.
constexpr std::size_t kMaxSize = 60;

void Print(const PlanRun& document) {
    std::ostringstream stream;
    stream << RunText(document) << RunCsv(document) << RunJson(document)
           << RefreshWeekday(document.plan.parameters).hint
           << PointsWithStockText(document.run.state);
    for (const auto& entry : document.run.LV_Bauzeiten) {
        stream << DueStarts(document.run.LV_Bauzeiten, entry.start, "0")
               << DueSleepEnds(document.plan.LV_Schlafzeiten, entry.start);
    }
    Require(document.hasRun || !document.messages.empty(), "a plan runs or says why not");
}

}  // namespace
}  // namespace tarvelin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t length) {
    using namespace tarvelin;
    const std::string_view bytes(reinterpret_cast<const char*>(data), length);
    const PlanRun document("plan.tvf", IniFile(bytes));
    Print(document);
    if (document.loaded && document.plan.LV_Bauliste.Rows().size() <= kMaxSize) {
        const Finding finding = CheckLaws(document.plan);
        Require(finding.empty(), "the laws of every plan", finding);
    }
    return 0;
}
