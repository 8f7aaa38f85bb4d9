// Checks the laws, each on a run of its own.
#include "PlanLaws.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <numeric>
#include <random>
#include <vector>

#include "export/RunReport.h"
#include "model/Cost.h"
#include "model/ItemTable.h"
#include "model/Transitions.h"
#include "persistence/PlanFile.h"
#include "plan/EditHistory.h"
#include "plan/ListEdit.h"
#include "plan/Rules.h"
#include "simulation/Comparison.h"
#include "simulation/History.h"
#include "simulation/RunSimulation.h"
#include "simulation/RunTrace.h"
#include "simulation/Simulation.h"
#include "util/Codepage1252.h"

namespace tarvelin {

namespace {

constexpr SimTime kEndOfClock(std::numeric_limits<Long>::max());

class NullSink final : public MessageSink {
  public:
    void Show(const Message& /*message*/) override {}
    void Beep() override {}
};

/// Records all that a run reports, and the state after each of its steps.
class EventLog final : public RunObserver {
  public:
    void OnStart(const StartEvent& event) override {
        starts.push_back(event);
        startEvents.push_back(states.size());
    }
    void OnNegativeStock(const GameState& /*state*/) override {
        negativeStockEvents.push_back(states.size());
    }
    void OnStepDone(const GameState& state) override { states.push_back(state); }

    std::vector<StartEvent> starts;
    /// The step of each start, and of each report of a negative stock.
    std::vector<std::size_t> startEvents;
    std::vector<std::size_t> negativeStockEvents;
    std::vector<GameState> states;
};

std::string Bytes(const Plan& plan) {
    IniFile profile("");
    WritePlan(plan, profile);
    return profile.Bytes();
}

std::array<const std::string*, 6> Inputs(const StartParameters& parameters) {
    return {&parameters.UniStartZeitTag,     &parameters.UniStartZeitMonat,
            &parameters.UniStartZeitJahr,    &parameters.UniStartZeitStunden,
            &parameters.UniStartZeitMinuten, &parameters.TempMax};
}

bool IsSavable(const Plan& plan) {
    const auto inputs = Inputs(plan.parameters);
    return std::ranges::all_of(inputs, [](const auto* text) { return ComesBack(*text); }) &&
           std::ranges::all_of(plan.LV_Schlafzeiten,
                               [](const SleepRow& row) {
                                   return ComesBack(row.Startzeit) && ComesBack(row.Endzeit);
                               }) &&
           std::ranges::all_of(plan.LV_Bauliste.Rows(),
                               [](const BuildListRow& row) { return ComesBack(row.Tag); });
}

/// The conditions of a plan's run, or default ones if its inputs are unusable.
RunConditions ConditionsOf(const Plan& plan) {
    const auto conditions = ParseRunConditions(plan);
    const auto* const parsed = std::get_if<RunConditions>(&conditions);
    return parsed == nullptr ? RunConditions{.Speedfaktor = 1} : *parsed;
}

/// The stock as the history predicts it, less the costs of the order that started in this step.
PerResource<FixedPoint> StockAfterStep(const GameState& before, const GameState& after,
                                       const StartEvent* start) {
    const HistoryRecorder recorder(before);
    auto stock = StockAfter(recorder.Recorded().back(), after.secsgone - before.secsgone);
    if (start != nullptr && start->order.kind == Order::Kind::Item) {
        const Cost& cost = CostOf(start->order.item, static_cast<Byte>(start->number - 1));
        for (const Resource resource : kResources) {
            stock[resource] = stock[resource] - FixedPoint::FromDouble(cost[resource]);
        }
    }
    return stock;
}

Finding CheckStocks(const EventLog& log, const GameState& initial) {
    std::size_t next = 0;
    for (std::size_t i = 0; i < log.states.size(); ++i) {
        const GameState& before = i == 0 ? initial : log.states[i - 1];
        const GameState& state = log.states[i];
        const bool start = next < log.startEvents.size() && log.startEvents[next] == i;
        const auto expected = StockAfterStep(before, state, start ? &log.starts[next] : nullptr);
        next += start ? 1 : 0;
        if (expected != state.stock && state.secsgone != kEndOfClock) {
            return "a stock is wrong behind step " + std::to_string(i);
        }
        if ((start && std::ranges::min(state.stock) < FixedPoint()) !=
            (std::ranges::count(log.negativeStockEvents, i) == 1)) {
            return "a debt isn't told in step " + std::to_string(i);
        }
    }
    return {};
}

/// Takes the queue from the code's first letter, independently of the run.
Finding CheckQueues(const EventLog& log) {
    std::map<char, SimTime> free;
    for (const StartEvent& start : log.starts) {
        SimTime& until = free[start.order.Tag().front()];
        if (start.order.kind == Order::Kind::Item && start.start < until) {
            return "row " + std::to_string(start.row + 1) + " starts within its queue's last one";
        }
        until = std::max(until, start.finish);
    }
    return {};
}

Finding CheckSums(const OrderList& list, const GameState& state) {
    double spent = 0;
    for (const ItemRow& row : ItemTable()) {
        if (state.Stufe[row.item] != list.ListStufe(row.item)) {
            return "a level is wrong";
        }
        for (Byte level = 0; level < list.ListStufe(row.item); ++level) {
            const Cost& cost = CostOf(row.item, level);
            spent = std::accumulate(cost.begin(), cost.end(), spent);
        }
    }
    return state.VerbauteRessourcen == HalfEvenLong(spent) ? "" : "the sum of costs is wrong";
}

/// Whether a resumed run reports and does the same as the whole one from step `step` on.
bool GoesOnLike(const EventLog& whole, std::size_t step, const EventLog& rest) {
    const auto starts =
        std::ranges::lower_bound(whole.startEvents, step) - whole.startEvents.begin();
    return std::ranges::equal(whole.states.begin() + static_cast<std::ptrdiff_t>(step),
                              whole.states.end(), rest.states.begin(), rest.states.end()) &&
           std::ranges::equal(whole.starts.begin() + starts, whole.starts.end(),
                              rest.starts.begin(), rest.starts.end());
}

/// A run over the first `n` orders, up to the step that started the last of them.
Simulation RunUntil(std::span<const Order> orders, std::size_t n, const RunConditions& conditions) {
    Simulation simulation(orders.first(n), conditions);
    EventLog quiet;
    while (quiet.starts.size() < n) {
        simulation.Step(quiet);
    }
    return simulation;
}

/// How many rows break their rule.
std::size_t RuleBreaches(std::span<const Order> orders) {
    std::size_t breaches = 0;
    OrderList list;
    for (const Order& order : orders) {
        if (order.kind == Order::Kind::Item && Refusal(order.item, list)) {
            ++breaches;
        }
        list.Append(order);
    }
    return breaches;
}

/// A random edit of random rows.
ListEdit AnyRows(const BuildList& list, std::minstd_rand& random) {
    const std::size_t rows = list.Rows().size();
    std::vector<std::size_t> chosen;
    for (std::size_t i = 0; i < rows; ++i) {
        if (random() % rows < 2) {
            chosen.push_back(i);
        }
    }
    ListEdit edit(list);
    const std::size_t position = random() % (rows + 1);
    switch (random() % 7) {
        case 0:
            edit.MoveUp(chosen);
            break;
        case 1:
            edit.MoveDown(chosen);
            break;
        case 2:
            edit.MoveBefore(position, chosen);
            break;
        case 3:
            edit.Remove(chosen);
            break;
        case 4:
            edit.Duplicate(chosen);
            break;
        case 5:
            edit.Insert(position, Order::Of(MineFactors{{{1, 2, 3}}}));
            break;
        default:
            edit.Insert(position, Order::Of(ItemTable()[random() % kNumItems].item));
    }
    return edit;
}

/// The list that dropping the rows one by one gives.
BuildList DroppedOneByOne(std::span<const Order> orders, const RunConditions& conditions) {
    BuildList list;
    for (const Order& order : orders) {
        static_cast<void>(order.kind == Order::Kind::Item
                              ? list.AddItem(order.item, conditions)
                              : list.AddProduction(order.factors, conditions));
    }
    return list;
}

}  // namespace

std::string StateText(const BuildList& list) {
    std::string text;
    for (const BuildListRow& row : list.Rows()) {
        text += row.text + "|" + row.Tag + "|" + row.SubItems1 + "|" + row.SubItems2 + "|" +
                (row.SubItems2Color == TextColor::Red ? "rot\n" : "schwarz\n");
    }
    for (const ItemRow& row : ItemTable()) {
        text += std::to_string(list.Orders().ListStufe(row.item)) + " ";
    }
    for (const Byte factor : list.Orders().ListFaktor()) {
        text += std::to_string(factor) + " ";
    }
    return text;
}

std::string ResultText(const Plan& plan) {
    const PlanRun document("plan.tvf", IniFile(Bytes(plan)));
    return RunText(document) + RunCsv(document) + RunJson(document);
}

Finding CheckSaving(const Plan& plan) {
    if (!IsSavable(plan)) {
        return {};
    }
    // The factor texts depend on the temperature, so both lists are made with the same one.
    const RunConditions conditions;
    NullSink messages;
    Plan before;
    Plan after;
    if (!ReadPlan(IniFile(Bytes(plan)), before, conditions, messages) ||
        !ReadPlan(IniFile(Bytes(before)), after, conditions, messages)) {
        return "a saved plan can't be loaded";
    }
    if (Bytes(after) != Bytes(plan) || after.LV_Schlafzeiten != plan.LV_Schlafzeiten) {
        return "a saved plan comes back as\n" + Bytes(after);
    }
    if (StateText(after.LV_Bauliste) != StateText(before.LV_Bauliste)) {
        return "a saved list comes back as\n" + StateText(after.LV_Bauliste);
    }
    return ResultText(after) == ResultText(plan) ? "" : "a saved plan has another result";
}

Finding CheckUndo(const Plan& plan) {
    const RunConditions conditions = ConditionsOf(plan);
    BuildList list;
    for (const BuildListRow& row : plan.LV_Bauliste.Rows()) {
        const std::string before = StateText(list);
        const auto other = static_cast<ItemId>(list.Rows().size() % ItemTable().size());
        if (list.AddItem(other, conditions)) {
            return "a row can't be added";
        }
        list.RemoveLast();
        if (!list.AddProduction({{1, 2, 3}}, conditions)) {
            list.RemoveLast();
        }
        if (StateText(list) != before) {
            return "an undo leaves\n" + StateText(list);
        }
        if (!list.Replay(row.Tag, conditions)) {
            return "a row can't be repeated";
        }
    }
    return {};
}

Finding CheckBooks(const Plan& plan) {
    if (std::holds_alternative<Message>(ParseRunConditions(plan))) {
        return {};
    }
    const RunConditions conditions = ConditionsOf(plan);
    const OrderList& list = plan.LV_Bauliste.Orders();
    Simulation simulation(list.All(), conditions);
    const GameState initial = simulation.State();
    EventLog log;
    simulation.RunToEnd(log);
    for (std::size_t i = 0; i < list.Size(); ++i) {
        if (log.starts.size() != list.Size() || log.starts[i].row != i ||
            log.starts[i].order != list.All()[i]) {
            return "row " + std::to_string(i + 1) + " hasn't started in its turn";
        }
    }
    for (const Finding& finding :
         {CheckQueues(log), CheckStocks(log, initial), CheckSums(list, simulation.State())}) {
        if (!finding.empty()) {
            return finding;
        }
    }
    return {};
}

Finding CheckResuming(const Plan& plan) {
    constexpr std::size_t kTrials = 12;
    const RunConditions conditions = ConditionsOf(plan);
    const auto orders = plan.LV_Bauliste.Orders().All();
    std::vector<Order> other(orders.begin(), orders.end());
    Simulation simulation(orders, conditions);
    std::vector<Simulation> copies;
    EventLog whole;
    while (!simulation.IsFinished()) {
        copies.push_back(simulation);
        simulation.Step(whole);
    }
    for (std::size_t step = 0; step < copies.size(); step += 1 + copies.size() / kTrials) {
        const GameState before = copies[step].State();
        Simulation copy = copies[step];
        EventLog rest;
        copy.RunToEnd(rest);
        if (!GoesOnLike(whole, step, rest) || copy.State() != simulation.State()) {
            return "a copy goes on otherwise from step " + std::to_string(step);
        }
        if (copies[step].State() != before) {
            return "a copy has changed what it was copied from";
        }
    }
    for (std::size_t n = 1; n < orders.size(); n += 1 + orders.size() / kTrials) {
        std::ranges::copy(orders, other.begin());
        std::ranges::reverse(other.begin() + static_cast<std::ptrdiff_t>(n), other.end());
        Simulation fresh(other, conditions);
        EventLog fromStart;
        fresh.RunToEnd(fromStart);
        Simulation resumed = RunUntil(orders, n, conditions);
        resumed.ReplaceOrders(other);
        EventLog rest;
        resumed.RunToEnd(rest);
        if (!GoesOnLike(fromStart, fromStart.states.size() - rest.states.size(), rest) ||
            rest.starts.size() != orders.size() - n) {
            return "a run goes on otherwise behind row " + std::to_string(n);
        }
    }
    return {};
}

Finding CheckTimeJump(const Plan& plan) {
    constexpr Long kPieces = 7;
    constexpr std::int64_t kHour = 3600;
    constexpr std::int64_t kExact = std::int64_t{1} << 40U;
    const RunConditions conditions = ConditionsOf(plan);
    Simulation simulation(plan.LV_Bauliste.Orders().All(), conditions);
    EventLog quiet;
    simulation.RunToEnd(quiet);
    GameState jumped = simulation.State();
    GameState stepped = simulation.State();
    std::int64_t divisor = kHour;
    for (const FixedPoint rate : jumped.ProStunde) {
        divisor = std::gcd(divisor, rate.Raw());
        if (std::abs(rate.Raw()) > kExact) {
            return {};
        }
    }
    const auto piece = static_cast<Long>(kHour / divisor);
    VergeheZeit(kPieces * piece, false, jumped, conditions);
    for (Long i = 0; i < kPieces; ++i) {
        VergeheZeit(piece, false, stepped, conditions);
    }
    return jumped == stepped || jumped.secsgone == kEndOfClock
               ? ""
               : "a jump is no walk of " + std::to_string(piece) + " s";
}

Finding CheckRepetition(const Plan& plan) {
    PlanRun document("plan.tvf", IniFile(Bytes(plan)));
    const std::string once = RunJson(document);
    if (document.hasRun) {
        NullSink messages;
        document.run.ResetSimulation(ConditionsOf(document.plan));
        RunSimulation(document.plan.LV_Bauliste.Orders().All(), document.run, messages);
        document.texts.AfterRun(document.run.state);
    }
    return RunJson(document) == once ? "" : "a second run has another result";
}

Finding CheckCurve(const Plan& plan) {
    if (plan.LV_Bauliste.Orders().IsEmpty()) {
        return {};
    }
    const RunConditions conditions = ConditionsOf(plan);
    const RunTrace trace = TraceRun(plan.LV_Bauliste.Orders().All(), conditions);
    Simulation simulation(plan.LV_Bauliste.Orders().All(), conditions);
    EventLog log;
    log.OnStepDone(simulation.State());
    simulation.RunToEnd(log);
    const auto byTime = [](const HistoryPoint& a, const HistoryPoint& b) {
        return a.time >= b.time;
    };
    if (std::ranges::adjacent_find(trace.curve, byTime) != trace.curve.end()) {
        return "the curve goes back in time";
    }
    for (std::size_t i = 0; i < log.states.size(); ++i) {
        const SimTime at = log.states[i].secsgone;
        // A click buffer can set the clock back: the last record that isn't later counts.
        std::size_t last = i;
        for (std::size_t j = i + 1; j < log.states.size(); ++j) {
            last = log.states[j].secsgone <= at ? j : last;
        }
        const HistoryPoint& point = PointAt(trace.curve, at);
        const GameState& state = log.states[last];
        if (point.time != state.secsgone || point.stock != state.stock ||
            point.ProStunde != state.ProStunde || point.Stufe != state.Stufe) {
            return "the curve is wrong at " + std::to_string(at.Seconds());
        }
    }
    return trace.end == simulation.State() && trace.starts == log.starts
               ? ""
               : "a run that is drawn is another one";
}

Finding CheckEdits(const Plan& plan) {
    constexpr int kTrials = 25;
    const RunConditions conditions = ConditionsOf(plan);
    std::minstd_rand random(static_cast<unsigned>(plan.LV_Bauliste.Rows().size()) + 1);
    std::vector<std::vector<Order>> states{SnapshotOf(plan).orders};
    BuildList list = DroppedOneByOne(states.front(), conditions);
    EditHistory history;
    history.Begin({.orders = states.front()});
    for (int i = 0; i < kTrials; ++i) {
        const ListEdit edit = AnyRows(list, random);
        const auto orders = edit.Orders();
        const bool tooLong = orders.size() > OrderList::kMaxSize;
        const std::size_t breaches = RuleBreaches(states.back());
        const auto objection = edit.Objection();
        if (!objection && (tooLong || RuleBreaches(orders) > breaches)) {
            return "an edit is let be that breaks a rule";
        }
        if (objection && !tooLong && breaches == 0 && RuleBreaches(orders) == 0) {
            return "an edit is refused: " + *objection;
        }
        if (objection || orders == states.back()) {
            continue;
        }
        history.Record({.orders = orders});
        list.SetOrders(orders, conditions);
        states.push_back(orders);
        if (StateText(list) != StateText(DroppedOneByOne(orders, conditions))) {
            return "an edited list isn't its rows dropped anew";
        }
    }
    for (std::size_t i = states.size() - 1; i > 0; --i) {
        if (history.Undo().orders != states[i - 1] || history.Redo().orders != states[i] ||
            history.Undo().orders != states[i - 1]) {
            return "an edit can't be taken back and done again";
        }
    }
    return history.CanUndo() ? "there is more to take back than was done" : "";
}

Finding CheckComparison(const Plan& plan) {
    if (plan.LV_Bauliste.Orders().IsEmpty()) {
        return {};
    }
    const RunConditions conditions = ConditionsOf(plan);
    const auto orders = plan.LV_Bauliste.Orders().All();
    std::vector<Order> other(orders.begin(), orders.end());
    std::ranges::reverse(other);
    other.resize(other.size() / 2 + 1);
    const RunTrace a = TraceRun(orders, conditions);
    const RunTrace b = TraceRun(other, conditions);
    if (!Compare(a, a).differences.empty()) {
        return "a run differs from itself";
    }
    const Comparison forward = Compare(a, b);
    Comparison backward = Compare(b, a);
    for (ComparisonRow& row : backward.differences) {
        std::swap(row.a, row.b);
    }
    if (forward.a != backward.b || forward.b != backward.a ||
        forward.differences != backward.differences) {
        return "a comparison has no mirror";
    }
    // Every start is listed, or equal in both runs.
    std::size_t inA = 0;
    std::size_t inB = 0;
    for (const ComparisonRow& row : forward.differences) {
        inA += row.a ? 1U : 0U;
        inB += row.b ? 1U : 0U;
    }
    return a.starts.size() - inA == b.starts.size() - inB ? "" : "a comparison loses orders";
}

Finding CheckLaws(const Plan& plan) {
    for (const auto law : {CheckSaving, CheckUndo, CheckBooks, CheckResuming, CheckTimeJump,
                           CheckRepetition, CheckCurve, CheckEdits, CheckComparison}) {
        if (Finding finding = law(plan); !finding.empty()) {
            return finding;
        }
    }
    return {};
}

bool ComesBack(std::string_view value) {
    constexpr std::string_view kBlanks = " \t\v\f";
    constexpr std::size_t kMaxLength = 255;
    if (value.empty()) {
        return true;
    }
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    const std::string bytes = To1252(value);
    return !quoted && kBlanks.find(value.front()) == std::string_view::npos &&
           kBlanks.find(value.back()) == std::string_view::npos &&
           value.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos &&
           bytes.size() <= kMaxLength && From1252(bytes) == value;
}

}  // namespace tarvelin
