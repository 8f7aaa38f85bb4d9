// Turns goal, pins and played orders into a task.
#include "search/PlanTask.h"

#include <algorithm>
#include <numeric>

#include "plan/Rules.h"
#include "search/GoalText.h"
#include "simulation/Simulation.h"

namespace tarvelin {

namespace {

using Levels = PerItem<Byte>;

SearchRefusal WrongCall(std::string text) {
    return {.text = std::move(text), .wrongCall = true};
}

/// The first row that the rules of the list refuse.
std::optional<SearchRefusal> CheckRules(const Plan& plan) {
    OrderList list;
    for (const Order& order : plan.LV_Bauliste.Orders().All()) {
        if (order.kind == Order::Kind::Item) {
            if (const auto refusal = Refusal(order.item, list)) {
                return SearchRefusal{
                    .text = "Zeile " + std::to_string(list.Size() + 1) + " (" + order.Tag() +
                            ") hält die Regeln der Bauliste nicht:" + std::string(*refusal)};
            }
        }
        list.Append(order);
    }
    return std::nullopt;
}

std::optional<SearchRefusal> SetPinned(const Plan& plan, const SearchRequest& request,
                                       std::vector<bool>& pinned) {
    const auto orders = plan.LV_Bauliste.Orders().All();
    for (const Order& order : orders) {
        pinned.push_back(!request.moveProduction && order.kind == Order::Kind::Production);
    }
    for (const auto& [first, last] : request.pinnedRanges) {
        if (first < 1 || first > last || last > orders.size()) {
            return WrongCall("Feste Zeilen gehen von 1 bis " + std::to_string(orders.size()) +
                             ", so lang ist die Bauliste");
        }
        std::fill(pinned.begin() + static_cast<std::ptrdiff_t>(first) - 1,
                  pinned.begin() + static_cast<std::ptrdiff_t>(last), true);
    }
    return std::nullopt;
}

/// Records when each order starts.
class StartTimes final : public RunObserver {
  public:
    static std::vector<SimTime> Of(const Plan& plan, const RunConditions& conditions) {
        StartTimes times;
        Simulation(plan.LV_Bauliste.Orders().All(), conditions).RunToEnd(times);
        return times.m_starts;
    }
    void OnStart(const StartEvent& event) override { m_starts.push_back(event.start); }

  private:
    std::vector<SimTime> m_starts;
};

constexpr std::int64_t kMinute = 60;

/// Fixes the orders that start before `notBefore`, and adds a pause until then.
std::optional<SearchRefusal> SetHead(const Plan& plan, DateTime notBefore, PlanTask& task) {
    RunConditions& conditions = task.task.conditions;
    const auto starts = StartTimes::Of(plan, conditions);
    const DateTime begin = conditions.StartDate;
    const auto headSize = static_cast<std::size_t>(
        std::ranges::find_if(
            starts, [&](SimTime start) { return conditions.WallClock(start) >= notBefore; }) -
        starts.begin());
    task.task.headSize = headSize;
    task.task.notBefore = SimTime(std::max(Long{0}, notBefore - begin));
    if (headSize == starts.size()) {
        return SearchRefusal{.text = "Alle Aufträge beginnen vor dem " + DateTimeText(notBefore) +
                                     ": es bleibt nichts umzustellen"};
    }
    if (headSize == 0) {
        return std::nullopt;
    }
    const DateTime last = conditions.WallClock(starts[headSize - 1]);
    const DateTime from(last.Seconds() / kMinute * kMinute + kMinute);
    const DateTime until((notBefore.Seconds() + kMinute - 1) / kMinute * kMinute);
    if (from >= until) {
        return std::nullopt;
    }
    task.pause = SleepRowOf(from, until);
    conditions.Schlafzeiten.insert(conditions.Schlafzeiten.begin(), {from, until});
    const auto withPause = StartTimes::Of(plan, conditions);
    if (!std::equal(starts.begin(), starts.begin() + static_cast<std::ptrdiff_t>(headSize),
                    withPause.begin())) {
        return SearchRefusal{.text = "Mit der Pause vor dem " + DateTimeText(notBefore) +
                                     " begännen schon gespielte Aufträge zu anderer Zeit"};
    }
    return std::nullopt;
}

/// Drops orders that the goal doesn't require and appends those that are missing.
void AimAtGoal(SearchTask& task) {
    Levels levels{};
    std::vector<Order> orders;
    std::vector<bool> pinned;
    const auto take = [&](const Order& order, bool isPinned) {
        orders.push_back(order);
        pinned.push_back(isPinned);
        if (order.kind == Order::Kind::Item) {
            ++levels[order.item];
        }
    };
    for (std::size_t i = 0; i < task.orders.size(); ++i) {
        const Order& order = task.orders[i];
        const bool surplus = order.kind == Order::Kind::Item && !RowOf(order.item).IsEconomy() &&
                             levels[order.item] >= task.minLevels[order.item];
        if (!surplus || i < task.headSize || task.pinned[i]) {
            take(order, task.pinned[i]);
        }
    }
    for (bool more = true; more;) {
        more = false;
        for (const ItemRow& row : ItemTable()) {
            while (levels[row.item] < task.minLevels[row.item] && IsAllowed(row.item, levels)) {
                take(Order::Of(row.item), false);
                more = true;
            }
        }
    }
    task.orders = std::move(orders);
    task.pinned = std::move(pinned);
}

bool Reached(const OrderList& list, const Levels& goal) {
    return std::ranges::equal(list.ListStufe(), goal, std::ranges::greater_equal());
}

/// Also for an empty list, which `ParseRunConditions` refuses.
std::variant<RunConditions, Message> ConditionsOf(Plan plan) {
    if (plan.LV_Bauliste.Orders().IsEmpty()) {
        static_cast<void>(plan.LV_Bauliste.AddItem(ItemId::MetMine, RunConditions()));
    }
    return ParseRunConditions(plan);
}

std::optional<SearchRefusal> SetGoal(const Plan& plan,
                                     const std::variant<Goal, std::string>& parsed,
                                     PlanTask& task) {
    if (const auto* const error = std::get_if<std::string>(&parsed)) {
        return WrongCall(*error);
    }
    const auto& goal = std::get<Goal>(parsed);
    const Levels levels = goal.ofPlan ? OwnGoal(plan) : goal.levels;
    if (levels == Levels{}) {
        return SearchRefusal{
            .text =
                "Der Plan hat kein Ziel außerhalb der Wirtschaft: weder Forschung noch Schiffe "
                "oder Verteidigung"};
    }
    SearchTask& search = task.task;
    search.kind = SearchTask::Kind::Goal;
    search.minLevels = WithPrerequisites(levels);
    AimAtGoal(search);
    if (!Reached(plan.LV_Bauliste.Orders(), search.minLevels)) {
        task.before.reset();
    }
    if (search.orders.size() > OrderList::kMaxSize) {
        return WrongCall("Das Ziel braucht mit seinen Voraussetzungen mehr als 254 Zeilen");
    }
    return std::nullopt;
}

}  // namespace

PerItem<Byte> OwnGoal(const Plan& plan) {
    Levels goal = plan.LV_Bauliste.Orders().ListStufe();
    for (const ItemRow& row : ItemTable()) {
        if (row.IsEconomy()) {
            goal[row.item] = 0;
        }
    }
    return goal;
}

std::variant<PlanTask, SearchRefusal> MakePlanTask(const Plan& plan, const SearchRequest& request) {
    const auto goal = ParseGoal(request.goal.value_or("plan"));
    const bool needsOrders = goal == decltype(goal)(Goal{.ofPlan = true});
    const auto conditions = needsOrders ? ParseRunConditions(plan) : ConditionsOf(plan);
    if (const auto* const message = std::get_if<Message>(&conditions)) {
        return SearchRefusal{.text = message->text};
    }
    PlanTask task;
    task.task.conditions = std::get<RunConditions>(conditions);
    const auto orders = plan.LV_Bauliste.Orders().All();
    task.task.orders.assign(orders.begin(), orders.end());
    std::optional<SearchRefusal> refusal = CheckRules(plan);
    if (!refusal) {
        refusal = SetPinned(plan, request, task.task.pinned);
    }
    if (!refusal && request.notBefore && !orders.empty()) {
        refusal = SetHead(plan, *request.notBefore, task);
    }
    if (!refusal && !orders.empty()) {
        task.before = Evaluate(task.task, task.task.orders);
    }
    if (!refusal && request.goal) {
        refusal = SetGoal(plan, goal, task);
    }
    if (refusal) {
        return *refusal;
    }
    return task;
}

SearchResult Search(const PlanTask& task, const SearchBudget& budget, const std::atomic<bool>& stop,
                    const std::function<void(const SearchProgress&)>& report) {
    SearchResult result = Search(task.task, budget, stop, report);
    constexpr double kHundred = 100;
    const double allowed = 1 + budget.slackPercent / kHundred;
    if (task.before &&
        (!result.best || result.best->score.duration > allowed * task.before->score.duration)) {
        result.best = task.before;
    }
    return result;
}

Plan WithOrders(const Plan& plan, const std::vector<Order>& orders,
                const std::optional<SleepRow>& pause) {
    Plan changed = plan;
    changed.LV_Bauliste.SetOrders(orders,
                                  {.Temperatur = ParseTemperature(plan.parameters).value_or(0)});
    if (pause) {
        changed.LV_Schlafzeiten.insert(changed.LV_Schlafzeiten.begin(), *pause);
    }
    return changed;
}

}  // namespace tarvelin
