// Texts for the result of a search.
#include "search/SearchTexts.h"

#include "model/ItemTable.h"
#include "simulation/RunTexts.h"
#include "simulation/RunTrace.h"

namespace tarvelin {

namespace {

/// Joins `text` of each item that `more` has more of.
template <class Text>
std::string Joined(const OrderList& more, const OrderList& fewer, const char* between, Text text) {
    std::string all;
    for (const ItemRow& row : ItemTable()) {
        const int difference = more.ListStufe(row.item) - fewer.ListStufe(row.item);
        if (difference > 0) {
            all += (all.empty() ? "" : between) + text(row, std::to_string(difference));
        }
    }
    return all;
}

std::string SolutionText(const Solution& solution) {
    return TimeSpanText(solution.score.duration) + ", " +
           CountText(static_cast<std::size_t>(solution.score.sittings), "Sitzung", "Sitzungen") +
           ", " + CountText(solution.orders.size(), "Zeile", "Zeilen");
}

OrderList ListFrom(const std::vector<Order>& orders) {
    OrderList list;
    for (const Order& order : orders) {
        list.Append(order);
    }
    return list;
}

/// The rates at the end of a run; empty without orders.
std::string RatesLine(const char* name, const OrderList& list, const RunConditions& conditions) {
    return list.IsEmpty() ? "" : name + RatesText(TraceRun(list.All(), conditions).end);
}

}  // namespace

std::string SurplusText(const OrderList& more, const OrderList& fewer) {
    return Joined(more, fewer, " ", [](const ItemRow& row, const std::string& number) {
        return std::string(row.ItemCode) + number;
    });
}

std::string SurplusInWords(const OrderList& more, const OrderList& fewer) {
    return Joined(more, fewer, ", ", [](const ItemRow& row, const std::string& number) {
        return number + " x " + std::string(row.name);
    });
}

std::string CountText(std::size_t number, const char* singular, const char* plural) {
    return std::to_string(number) + " " + (number == 1 ? singular : plural);
}

std::string RatesText(const GameState& state) {
    std::string text;
    for (const Resource resource : kResources) {
        text += (text.empty() ? "" : ", ") + std::string(kResourceNames[resource]) + " " +
                std::to_string(state.ProStunde[resource].WholePart());
    }
    return text;
}

std::string ProgressSummary(const SearchProgress& progress) {
    return "Bisher: " + TimeSpanText(progress.bestDuration) + " (" +
           SignedTimeSpanText(-progress.gain) + ")\n" + std::to_string(progress.tries) + " von " +
           std::to_string(progress.totalTries) + " Versuchen, " +
           std::to_string(std::int64_t(progress.triesPerSecond)) + " in der Sekunde";
}

std::string ResultSummary(const Plan& plan, const PlanTask& task, const SearchResult& result) {
    if (!result.best) {
        return "Es wurde keine Liste gefunden, die endet.";
    }
    const Solution& after = *result.best;
    std::string text =
        "Vorher: " +
        (task.before ? SolutionText(*task.before) : "der Plan endet nie oder verfehlt das Ziel") +
        "\nNachher: " + SolutionText(after);
    if (task.before) {
        text += "\nUnterschied: " +
                SignedTimeSpanText(after.score.duration - task.before->score.duration);
    }
    const OrderList& oldOrders = plan.LV_Bauliste.Orders();
    const OrderList newOrders = ListFrom(after.orders);
    for (const auto& [name, surplus] :
         {std::pair("\nKommt dazu: ", SurplusInWords(newOrders, oldOrders)),
          std::pair("\nEntfällt: ", SurplusInWords(oldOrders, newOrders))}) {
        text += surplus.empty() ? "" : name + surplus;
    }
    return text + RatesLine("\nJe Stunde vorher: ", oldOrders, task.task.conditions) +
           RatesLine("\nJe Stunde nachher: ", newOrders, task.task.conditions) +
           "\nVersuche: " + std::to_string(result.tries);
}

}  // namespace tarvelin
