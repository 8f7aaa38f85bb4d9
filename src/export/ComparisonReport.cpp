// The tables and the object of a comparison.
#include "export/ComparisonReport.h"

#include <nlohmann/json.hpp>

#include "export/ComparisonTexts.h"
#include "simulation/RunTexts.h"

namespace tarvelin {

namespace {

using nlohmann::json;
/// Under a header that names the plans.
std::string Table(const char* first, const PlanRun& a, const PlanRun& b, TextTable rows) {
    rows.insert(rows.begin(), {first, a.name, b.name, "Unterschied"});
    return AlignedText(rows, {1, 2, 3});
}

json ToJson(const PlanRun& plan, const RunSummary& figures) {
    return {{"Plan", plan.name},
            {"Sekunden", figures.duration},
            {"VerbauteRessourcen", figures.VerbauteRessourcen},
            {"Metall", FourDecimalsText(figures.stock[Resource::Metall])},
            {"Kristall", FourDecimalsText(figures.stock[Resource::Kristall])},
            {"Deuterium", FourDecimalsText(figures.stock[Resource::Deuterium])},
            {"Sitzungen", figures.sittings},
            {"Leerlauf",
             {{"Bauschleife", figures.idle[Queue::Building]},
              {"Forschungsschleife", figures.idle[Queue::Research]},
              {"Werftschleife", figures.idle[Queue::Shipyard]}}}};
}

json SecondsJson(const std::optional<SimTime>& moment) {
    return moment ? json(moment->Seconds()) : json();
}

}  // namespace

std::string ComparisonText(const PlanRun& a, const PlanRun& b) {
    const Comparison comparison = Compare(a.Trace(), b.Trace());
    return Table("", a, b, SummaryTexts(comparison)) + "\n" +
           (comparison.differences.empty() ? "Alle Aufträge beginnen zur selben Zeit.\n"
                                           : Table("Auftrag", a, b, OrderDifferences(comparison)));
}

std::string ComparisonJson(const PlanRun& a, const PlanRun& b) {
    const Comparison comparison = Compare(a.Trace(), b.Trace());
    json differences = json::array();
    for (const ComparisonRow& row : comparison.differences) {
        const auto difference = row.Difference();
        differences.push_back({{"Auftrag", OrderKey(row.order, row.number)},
                               {"Tag", row.order.Tag()},
                               {"Nummer", row.number},
                               {"A", SecondsJson(row.a)},
                               {"B", SecondsJson(row.b)},
                               {"Unterschied", difference ? json(*difference) : json()}});
    }
    return json{{"A", ToJson(a, comparison.a)},
                {"B", ToJson(b, comparison.b)},
                {"Unterschiede", differences}}
        .dump(1);
}

}  // namespace tarvelin
