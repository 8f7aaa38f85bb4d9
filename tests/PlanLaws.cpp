// Checks the laws, each on a run of its own.
#include "PlanLaws.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <numeric>
#include <random>
#include <sstream>
#include <vector>

#include "document/NightProposal.h"
#include "document/PlanRun.h"
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
#include "simulation/InsertPreview.h"
#include "simulation/RunSimulation.h"
#include "simulation/RunTrace.h"
#include "simulation/Simulation.h"
#include "util/Codepage1252.h"

namespace tarvelin {

namespace {

constexpr SimTime kEndOfClock(std::numeric_limits<Long>::max());

/// A run played to its end, with all that it reports.
class PlayedRun final : public RunObserver {
  public:
    PlayedRun(std::span<const Order> orders, const RunConditions& conditions)
        : PlayedRun(Simulation(orders, conditions)) {}
    /// Goes on from where the simulation is.
    explicit PlayedRun(Simulation simulation) : states{simulation.State()} {
        simulation.RunToEnd(*this);
    }

    void OnStart(const StartEvent& event) override {
        starts.push_back(event);
        startSteps.push_back(states.size());
    }
    void OnNegativeStock(const GameState& /*state*/) override {
        debtSteps.push_back(states.size());
    }
    void OnStepDone(const GameState& state) override { states.push_back(state); }

    /// Whether another run ends with all that happened in this one.
    [[nodiscard]] bool IsEndOf(const PlayedRun& other) const {
        const auto isEnd = [](const auto& part, const auto& all) {
            return part.size() <= all.size() &&
                   std::equal(part.rbegin(), part.rend(), all.rbegin());
        };
        return isEnd(states, other.states) && isEnd(starts, other.starts);
    }

    /// The state at the beginning and after each step.
    std::vector<GameState> states;
    std::vector<StartEvent> starts;
    /// The step of each start, and of each report of a negative stock.
    std::vector<std::size_t> startSteps;
    std::vector<std::size_t> debtSteps;
};

std::string Bytes(const Plan& plan) {
    IniFile profile("");
    WritePlan(plan, profile);
    return profile.Bytes();
}

std::vector<std::string> TagsOf(const BuildList& list) {
    std::vector<std::string> tags;
    std::ranges::transform(list.Rows(), std::back_inserter(tags), &BuildListRow::Tag);
    return tags;
}

bool IsSavable(const Plan& plan) {
    std::vector<std::string> texts = TagsOf(plan.LV_Bauliste);
    const StartParameters& parameters = plan.parameters;
    texts.insert(texts.end(), {parameters.UniStartZeitTag, parameters.UniStartZeitMonat,
                               parameters.UniStartZeitJahr, parameters.UniStartZeitStunden,
                               parameters.UniStartZeitMinuten, parameters.TempMax});
    for (const SleepRow& row : plan.LV_Schlafzeiten) {
        texts.insert(texts.end(), {row.Startzeit, row.Endzeit});
    }
    return std::ranges::all_of(texts, ComesBack);
}

/// The conditions of a plan's run, or default ones if its inputs are unusable.
RunConditions ConditionsOf(const Plan& plan) {
    const auto conditions = ParseRunConditions(plan);
    const auto* const parsed = std::get_if<RunConditions>(&conditions);
    return parsed == nullptr ? RunConditions{.Speedfaktor = 1} : *parsed;
}

/// Each stock is what its history predicts, less the costs; debts are reported.
Finding CheckStocks(const PlayedRun& run) {
    std::size_t next = 0;
    for (std::size_t i = 1; i < run.states.size(); ++i) {
        const GameState& before = run.states[i - 1];
        const GameState& state = run.states[i];
        const HistoryRecorder history(before);
        auto expected = StockAfter(history.Recorded().back(), state.secsgone - before.secsgone);
        const bool starts = next < run.starts.size() && run.startSteps[next] == i;
        if (starts && run.starts[next].order.kind == Order::Kind::Item) {
            const StartEvent& start = run.starts[next];
            const Cost& cost = CostOf(start.order.item, static_cast<Byte>(start.number - 1));
            for (const Resource resource : kResources) {
                expected[resource] = expected[resource] - FixedPoint::FromDouble(cost[resource]);
            }
        }
        next += starts ? 1 : 0;
        if (expected != state.stock && state.secsgone != kEndOfClock) {
            return "a stock is wrong behind step " + std::to_string(i);
        }
        if ((starts && std::ranges::min(state.stock) < FixedPoint()) !=
            (std::ranges::count(run.debtSteps, i) == 1)) {
            return "a debt isn't told in step " + std::to_string(i);
        }
    }
    return {};
}

/// Each order starts in its turn, not before the previous one of its queue is done, and not later
/// than the previous order without a cause. Takes the queue from the code's first letter.
Finding CheckStarts(const PlayedRun& run, std::span<const Order> orders, Long klickPuffer) {
    std::map<char, SimTime> free;
    SimTime previous = kEndOfClock;
    for (std::size_t i = 0; i < orders.size(); ++i) {
        const std::string row = "row " + std::to_string(i + 1);
        if (run.starts.size() != orders.size() || run.starts[i].row != i ||
            run.starts[i].order != orders[i]) {
            return row + " hasn't started in its turn";
        }
        const StartEvent& start = run.starts[i];
        SimTime& until = free[start.order.Tag().front()];
        if (start.order.kind == Order::Kind::Item && start.start < until) {
            return row + " starts within its queue's last one";
        }
        until = std::max(until, start.finish);
        if (start.delay.cause == DelayCause::None &&
            start.start + -std::int64_t{klickPuffer} > previous) {
            return row + " waits without a cause";
        }
        previous = start.start;
    }
    return {};
}

/// The final levels are the counts of the list, and the spent resources the sum of the costs.
Finding CheckSums(const OrderList& list, const GameState& state) {
    double spent = 0;
    for (const ItemRow& row : ItemTable()) {
        for (Byte level = 0; level < list.ListStufe(row.item); ++level) {
            const Cost& cost = CostOf(row.item, level);
            spent = std::accumulate(cost.begin(), cost.end(), spent);
        }
    }
    return state.Stufe == list.ListStufe() && state.VerbauteRessourcen == HalfEvenLong(spent)
               ? ""
               : "a level or the sum of costs is wrong";
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

/// A saved plan loads with the same codes, inputs, texts and result. Holds trivially for a plan
/// with texts that a file can't store.
Finding CheckSaving(const Plan& plan) {
    if (!IsSavable(plan)) {
        return {};
    }
    // The factor texts depend on the temperature, so both lists are made with the same one.
    const RunConditions conditions;
    std::vector<Message> messages;
    MessageCollector collector(messages);
    Plan before;
    Plan after;
    if (!ReadPlan(IniFile(Bytes(plan)), before, conditions, collector) ||
        !ReadPlan(IniFile(Bytes(before)), after, conditions, collector)) {
        return "a saved plan can't be loaded";
    }
    if (Bytes(after) != Bytes(plan) || after.LV_Schlafzeiten != plan.LV_Schlafzeiten ||
        StateText(after.LV_Bauliste) != StateText(before.LV_Bauliste)) {
        return "a saved plan comes back as\n" + Bytes(after) + StateText(after.LV_Bauliste);
    }
    return ResultText(after) == ResultText(plan) ? "" : "a saved plan has another result";
}

/// After each row of the plan: adding another row and undoing it leaves the list as it was.
Finding CheckUndo(const Plan& plan) {
    const RunConditions conditions = ConditionsOf(plan);
    BuildList list;
    for (const BuildListRow& row : plan.LV_Bauliste.Rows()) {
        const std::string before = StateText(list);
        for (const std::string_view other :
             {ItemTable()[list.Rows().size() % kNumItems].ItemCode, std::string_view("GX:1:2:3")}) {
            if (!list.Replay(other, conditions)) {
                return "a row can't be added";
            }
            list.RemoveLast();
        }
        if (StateText(list) != before) {
            return "an undo leaves\n" + StateText(list);
        }
        static_cast<void>(list.Replay(row.Tag, conditions));
    }
    return TagsOf(list) == TagsOf(plan.LV_Bauliste) ? "" : "a row can't be repeated";
}

/// The books of a run balance.
Finding CheckBooks(const Plan& plan) {
    if (std::holds_alternative<Message>(ParseRunConditions(plan))) {
        return {};
    }
    const RunConditions conditions = ConditionsOf(plan);
    const OrderList& list = plan.LV_Bauliste.Orders();
    const PlayedRun run(list.All(), conditions);
    for (const Finding& finding : {CheckStarts(run, list.All(), conditions.KlickPuffer),
                                   CheckStocks(run), CheckSums(list, run.states.back())}) {
        if (!finding.empty()) {
            return finding;
        }
    }
    return {};
}

/// A copy of a run that goes on with the same or other orders does the same as a run over these
/// from the beginning, and changes nothing of what it was copied from.
Finding CheckResuming(const Plan& plan) {
    constexpr std::size_t kTrials = 12;
    const RunConditions conditions = ConditionsOf(plan);
    const auto orders = plan.LV_Bauliste.Orders().All();
    for (std::size_t n = 1; n < orders.size(); n += 1 + orders.size() / kTrials) {
        std::vector<Order> other(orders.begin(), orders.end());
        std::ranges::reverse(other.begin() + static_cast<std::ptrdiff_t>(n), other.end());
        Simulation simulation(orders.first(n), conditions);
        for (PlayedRun begun{Simulation({}, conditions)}; begun.starts.size() < n;) {
            simulation.Step(begun);
        }
        for (const std::span<const Order> list : {std::span<const Order>(other), orders}) {
            Simulation copy = simulation;
            copy.ReplaceOrders(list);
            const PlayedRun rest(copy);
            if (!rest.IsEndOf(PlayedRun(list, conditions)) ||
                rest.starts.size() != orders.size() - n) {
                return "a run goes on otherwise behind row " + std::to_string(n);
            }
        }
    }
    return {};
}

/// Passing a time at once equals passing it in pieces, if these lose no fraction.
Finding CheckTimeJump(const Plan& plan) {
    constexpr Long kPieces = 7;
    constexpr std::int64_t kHour = 3600;
    constexpr std::int64_t kExact = std::int64_t{1} << 40U;
    const RunConditions conditions = ConditionsOf(plan);
    GameState jumped = PlayedRun(plan.LV_Bauliste.Orders().All(), conditions).states.back();
    GameState stepped = jumped;
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

/// Repeating a run in the same `LastRun` gives the same result.
Finding CheckRepetition(const Plan& plan) {
    PlanRun document("plan.tvf", IniFile(Bytes(plan)));
    const std::string once = RunJson(document);
    if (document.hasRun) {
        std::vector<Message> repeated;
        MessageCollector messages(repeated);
        document.run.ResetSimulation(ConditionsOf(document.plan));
        RunSimulation(document.plan.LV_Bauliste.Orders().All(), document.run, messages);
        document.texts.AfterRun(document.run.state);
    }
    return RunJson(document) == once ? "" : "a second run has another result";
}

/// The curve of a run goes forward in time, and has for each moment what the run recorded last.
Finding CheckCurve(const Plan& plan) {
    if (plan.LV_Bauliste.Orders().IsEmpty()) {
        return {};
    }
    const auto orders = plan.LV_Bauliste.Orders().All();
    const RunTrace trace = TraceRun(orders, ConditionsOf(plan));
    const PlayedRun run(orders, trace.conditions);
    if (!std::ranges::is_sorted(trace.curve, std::ranges::less_equal(), &HistoryPoint::time)) {
        return "the curve goes back in time";
    }
    for (std::size_t i = 0; i < run.states.size(); ++i) {
        const SimTime at = run.states[i].secsgone;
        // A click buffer can set the clock back: the last record that isn't later counts.
        std::size_t last = i;
        for (std::size_t j = i + 1; j < run.states.size(); ++j) {
            last = run.states[j].secsgone <= at ? j : last;
        }
        const HistoryPoint& point = PointAt(trace.curve, at);
        const GameState& state = run.states[last];
        if (point.time != state.secsgone || point.stock != state.stock ||
            point.ProStunde != state.ProStunde || point.Stufe != state.Stufe) {
            return "the curve is wrong at " + std::to_string(at.Seconds());
        }
    }
    return trace.end == run.states.back() && trace.starts == run.starts
               ? ""
               : "a run that is drawn is another one";
}

/// Edits anywhere in the list: an accepted edit breaks no rule that held before, a refused one
/// would; the list after it equals its rows dropped one by one; undo and redo give the same rows.
Finding CheckEdits(const Plan& plan) {
    constexpr int kTrials = 25;
    const RunConditions conditions = ConditionsOf(plan);
    std::minstd_rand random(static_cast<unsigned>(plan.LV_Bauliste.Rows().size()) + 1);
    std::vector<std::vector<Order>> states{SnapshotOf(plan).orders};
    BuildList list;
    list.SetOrders(states.front(), conditions);
    ListEdit harmless(list);
    harmless.Insert(list.Rows().size(), Order::Of(kFullFactors));
    if (harmless.Objection() && !list.Orders().IsFull()) {
        return "an edit is refused for a row that broke its rule before";
    }
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
            return "an edit is refused: " + objection->text;
        }
        if (objection || orders == states.back()) {
            continue;
        }
        history.Record({.orders = orders});
        list.SetOrders(orders, conditions);
        states.push_back(orders);
        BuildList anew;
        for (const Order& order : orders) {
            static_cast<void>(anew.Replay(order.Tag(), conditions));
        }
        if (StateText(list) != StateText(anew)) {
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

/// An order starts at the number and takes the time that a preview of its place tells.
Finding CheckPreviews(const Plan& plan) {
    const RunConditions conditions = ConditionsOf(plan);
    const auto orders = plan.LV_Bauliste.Orders().All();
    for (const StartEvent& start : PlayedRun(orders, conditions).starts) {
        if (start.order.kind != Order::Kind::Item || start.gateClosed ||
            start.finish == kEndOfClock) {
            continue;
        }
        const InsertPreview preview =
            PreviewOf(start.order.item, orders.first(start.row), conditions);
        if (preview.number != start.number ||
            std::abs(preview.seconds - (start.finish - start.start)) > 1) {
            return "row " + std::to_string(start.row + 1) + " isn't what its preview told";
        }
    }
    return {};
}

/// A plan with the nights of a rule doesn't outlast them, and has them all.
Finding CheckNights(const Plan& plan) {
    const SleepRule rule = SleepRule::EveryNight({});
    const NightProposal once = ProposeNights(plan, rule, AtOverlap::Merge);
    if (!once.trace || once.trace->end.IsAtEndOfClock() || once.filled.added == 0 ||
        once.filled.added + once.filled.merged + once.filled.present >= kMaxNights) {
        return {};
    }
    Plan filled = plan;
    filled.LV_Schlafzeiten = once.filled.table;
    const RunConditions& conditions = once.trace->conditions;
    return SleeplessFrom(once.filled.table, conditions.StartDate,
                         conditions.WallClock(once.trace->Duration())) ||
                   !ProposeNights(filled, rule, AtOverlap::Merge).filled.ChangesNothing()
               ? "a plan outlasts its nights"
               : "";
}

/// Comparing a run with itself finds nothing; comparing two is symmetric, and lists each order that
/// isn't started at the same moment by the earlier of its starts, with a difference if both have
/// it.
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
    std::size_t inA = 0;
    std::size_t inB = 0;
    SimTime earlier(0);
    for (const ComparisonRow& row : forward.differences) {
        inA += row.a ? 1U : 0U;
        inB += row.b ? 1U : 0U;
        const SimTime first = std::min(row.a.value_or(kEndOfClock), row.b.value_or(kEndOfClock));
        const auto difference = row.Difference();
        if (first < earlier || row.a == row.b || difference.has_value() != (row.a && row.b) ||
            (difference && *row.a + *difference != *row.b)) {
            return "a row of a comparison is wrong";
        }
        earlier = first;
    }
    // Every start is listed, or equal in both runs.
    return a.starts.size() - inA == b.starts.size() - inB ? "" : "a comparison loses orders";
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

Finding CheckLaws(const Plan& plan) {
    for (const auto law :
         {CheckSaving, CheckUndo, CheckBooks, CheckResuming, CheckTimeJump, CheckRepetition,
          CheckCurve, CheckEdits, CheckPreviews, CheckNights, CheckComparison}) {
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
