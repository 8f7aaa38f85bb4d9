// The lines and the object of a result.
#include "export/SearchReport.h"

#include <cstdlib>

#include "export/ReadableJson.h"
#include "export/RunReport.h"
#include "export/TextTable.h"
#include "search/SearchTexts.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

using nlohmann::json;

json ToJson(const Solution& solution, const GameState& state) {
    json rates = json::array();
    for (const FixedPoint rate : state.ProStunde) {
        rates.push_back(rate.WholePart());
    }
    return {{"Sekunden", solution.score.duration},
            {"Dauer", DurationText(solution.score.duration)},
            {"Zeilen", solution.orders.size()},
            {"Sitzungen", solution.score.sittings},
            {"ProStunde", rates}};
}

std::string SolutionText(const Solution& solution) {
    return DurationText(solution.score.duration) + "   " +
           CountText(static_cast<std::size_t>(solution.score.sittings), "Sitzung", "Sitzungen") +
           "   " + CountText(solution.orders.size(), "Zeile", "Zeilen");
}

/// May be negative: a list with fewer sittings may take longer.
std::string GainText(Long gain) {
    return (gain < 0 ? "-" : "") + DurationText(std::abs(gain));
}

std::string Line(const std::string& name, const std::string& text) {
    constexpr std::size_t kWidth = 13;
    return Padded(name + ":", kWidth, false) + text + "\n";
}

std::string Percent(Long gain, Long from) {
    constexpr double kHundred = 100;
    return DecimalText(from == 0 ? 0 : kHundred * gain / from, 1) + " %";
}

}  // namespace

std::string SearchText(const SearchReport& report) {
    const Solution& after = *report.result.best;
    const auto& before = report.task.before;
    std::string text = Line(
        "Vorher", before ? SolutionText(*before) : "der Plan endet nie oder verfehlt das Ziel");
    text += Line("Nachher", SolutionText(after));
    if (before) {
        const Long gain = before->score.duration - after.score.duration;
        text += Line("Gewinn", GainText(gain) + " (" + Percent(gain, before->score.duration) + ")");
    }
    const OrderList& oldOrders = report.before.plan.LV_Bauliste.Orders();
    const OrderList& newOrders = report.after.plan.LV_Bauliste.Orders();
    for (const auto& [name, items] :
         {std::pair("Kommt dazu", SurplusInWords(newOrders, oldOrders)),
          std::pair("Entfällt", SurplusInWords(oldOrders, newOrders))}) {
        if (!items.empty()) {
            text += Line(name, items);
        }
    }
    if (report.before.hasRun) {
        text += Line("Je Stunde", RatesText(report.before.run.state) + " (vorher)");
    }
    text += Line("Je Stunde", RatesText(report.after.run.state) + " (nachher)");
    if (const auto& pause = report.task.pause) {
        text += Line("Pause", pause->Startzeit + " bis " + pause->Endzeit);
    }
    text += Line("Versuche",
                 std::to_string(report.result.tries) + "   Saat: " + std::to_string(report.seed));
    return text + "\n" + RunText(report.after);
}

std::string SearchJson(const SearchReport& report) {
    const auto& before = report.task.before;
    json tags = json::array();
    for (const Order& order : report.result.best->orders) {
        tags.push_back(order.Tag());
    }
    const OrderList& oldOrders = report.before.plan.LV_Bauliste.Orders();
    const OrderList& newOrders = report.after.plan.LV_Bauliste.Orders();
    json object{{"Vorher", before ? ToJson(*before, report.before.run.state) : json()},
                {"Nachher", ToJson(*report.result.best, report.after.run.state)},
                {"Versuche", report.result.tries},
                {"Saat", report.seed},
                {"Hinzu", SurplusText(newOrders, oldOrders)},
                {"Weg", SurplusText(oldOrders, newOrders)},
                {"Bauliste", tags}};
    if (const auto& pause = report.task.pause) {
        object["Pause"] = {pause->Startzeit, pause->Endzeit};
    }
    return ReadableJson(object);
}

std::string ProgressLine(const SearchProgress& progress) {
    return DurationText(progress.bestDuration) + "  Gewinn " + GainText(progress.gain) +
           "  Versuch " + std::to_string(progress.tries) + " von " +
           std::to_string(progress.totalTries) + "  Kette " + std::to_string(progress.chain) +
           "  " + WholeText(progress.triesPerSecond) + "/s  besser vor " +
           WholeText(progress.secondsSinceBest) + " s";
}

}  // namespace tarvelin
