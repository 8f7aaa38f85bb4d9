// The tables and the object of a comparison.
#include "export/ComparisonReport.h"

#include "export/ComparisonTexts.h"
#include "export/ReadableJson.h"
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
    json object{{"Plan", plan.name},
                {"Sekunden", figures.duration},
                {"VerbauteRessourcen", figures.VerbauteRessourcen},
                {"Sitzungen", figures.sittings}};
    AddResources(object, figures.stock);
    for (const Queue queue : {Queue::Building, Queue::Research, Queue::Shipyard}) {
        object["Leerlauf"][std::string(QueueName(queue))] = figures.idle[queue];
    }
    return object;
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
    return ReadableJson({{"A", ToJson(a, comparison.a)},
                         {"B", ToJson(b, comparison.b)},
                         {"Unterschiede", differences}});
}

}  // namespace tarvelin
