// The rows of the two tables.
#include "export/ComparisonTexts.h"

#include "simulation/RunTexts.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

TextRow TimeText(std::string name, Long a, Long b) {
    return {std::move(name), TimeSpanText(a), TimeSpanText(b),
            SignedTimeSpanText(LongSum(b, -std::int64_t{a}))};
}

TextRow NumberText(std::string name, double a, double b, int decimals) {
    const auto text = [decimals](double value) { return DecimalText(value, decimals); };
    return {std::move(name), text(a), text(b), (b > a ? "+" : "") + text(b - a)};
}

}  // namespace

TextTable SummaryTexts(const Comparison& comparison) {
    const RunSummary& a = comparison.a;
    const RunSummary& b = comparison.b;
    constexpr double kResourcesPerPoint = 1000;
    constexpr int kDecimals = 3;
    TextTable rows{TimeText("Dauer", a.duration, b.duration),
                   NumberText("Punkte", a.VerbauteRessourcen / kResourcesPerPoint,
                              b.VerbauteRessourcen / kResourcesPerPoint, kDecimals)};
    for (const Resource resource : kResources) {
        rows.push_back(NumberText(std::string(kResourceNames[resource]),
                                  static_cast<double>(a.stock[resource].WholePart()),
                                  static_cast<double>(b.stock[resource].WholePart()), 0));
    }
    rows.push_back(NumberText("Sitzungen", a.sittings, b.sittings, 0));
    for (const Queue queue : {Queue::Building, Queue::Research, Queue::Shipyard}) {
        rows.push_back(
            TimeText(std::string(QueueName(queue)) + " ohne Arbeit", a.idle[queue], b.idle[queue]));
    }
    return rows;
}

TextTable OrderDifferences(const Comparison& comparison) {
    TextTable rows;
    const auto text = [](const std::optional<SimTime>& moment) -> std::string {
        return moment ? TimeSpanText(moment->Seconds()) : "fehlt";
    };
    for (const ComparisonRow& row : comparison.differences) {
        const auto difference = row.Difference();
        rows.push_back({OrderText(row.order, row.number), text(row.a), text(row.b),
                        difference ? SignedTimeSpanText(*difference) : ""});
    }
    return rows;
}

}  // namespace tarvelin
