// Prints the comparison of two plans.
#include "export/ComparisonReport.h"

#include <nlohmann/json.hpp>

#include "export/ComparisonTexts.h"
#include "export/TextTable.h"
#include "simulation/RunTexts.h"

namespace tarvelin {

namespace {

using nlohmann::json;
using TextRows = std::vector<std::vector<std::string>>;

TextRows WithHeader(std::vector<std::string> header, const std::vector<ComparisonText>& texts) {
    TextRows rows{std::move(header)};
    for (const ComparisonText& text : texts) {
        rows.emplace_back(text.begin(), text.end());
    }
    return rows;
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

void WriteComparison(std::ostream& stream, const PlanRun& a, const PlanRun& b) {
    const Comparison comparison = Compare(a.Trace(), b.Trace());
    constexpr const char* kDifference = "Unterschied";
    const std::vector<std::size_t> right{1, 2, 3};
    WriteTable(stream, WithHeader({"", a.name, b.name, kDifference}, SummaryTexts(comparison)),
               right);
    stream << '\n';
    const auto orders = OrderDifferences(comparison);
    if (orders.empty()) {
        stream << "Alle Aufträge beginnen zur selben Zeit.\n";
        return;
    }
    WriteTable(stream, WithHeader({"Auftrag", a.name, b.name, kDifference}, orders), right);
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
