// Tests the search: proved optima, and what holds for every result.
#include "search/Search.h"

#include <map>

#include "OptimumProof.h"
#include "TestSupport.h"
#include "document/PlanRun.h"
#include "plan/Rules.h"
#include "search/PlanTask.h"

namespace tarvelin {
namespace {

const std::atomic<bool> kGoOn{false};

void Quiet(const SearchProgress& /*progress*/) {}

constexpr SearchBudget kOneChain{.tries = SearchBudget::kChainLength};

const PlanRun& StarterRun() {
    static const PlanRun document(std::filesystem::path(TARVELIN_SOURCE_DIR) /
                                  "data/saves/basic.tvf");
    return document;
}

const Plan& StarterPlan() {
    return StarterRun().plan;
}

PlanTask MakeTask(const Plan& plan, const SearchRequest& request) {
    const auto task = MakePlanTask(plan, request);
    const auto* const refusal = std::get_if<SearchRefusal>(&task);
    EXPECT_EQ(refusal, nullptr) << refusal->text;
    return refusal != nullptr ? PlanTask() : std::get<PlanTask>(task);
}

/// The solution as the player gets it: written to a file, loaded and run.
PlanRun Reloaded(const Plan& plan, const PlanTask& task, const Solution& solution) {
    IniFile profile("");
    WritePlan(WithOrders(plan, solution.orders, task.pause), profile);
    return {"gefunden", IniFile(profile.Bytes())};
}

bool KeepsRules(const std::vector<Order>& orders) {
    OrderList list;
    return std::ranges::all_of(orders, [&](const Order& order) {
        const bool allowed = order.kind != Order::Kind::Item || !Refusal(order.item, list);
        list.Append(order);
        return allowed;
    });
}

std::map<std::string, int> CountsOf(const std::vector<Order>& orders) {
    std::map<std::string, int> counts;
    for (const Order& order : orders) {
        ++counts[order.Tag()];
    }
    return counts;
}

std::vector<DateTime> StartTimesOf(const PlanRun& document) {
    std::vector<DateTime> times;
    for (const ScheduleEntry& row : document.run.LV_Bauzeiten) {
        times.push_back(row.start);
    }
    return times;
}

/// What holds for any result: it keeps the rules and its duration when saved, and is never worse
/// than the plan.
void Check(const Plan& plan, const PlanTask& task, const SearchResult& result) {
    ASSERT_TRUE(result.best);
    const Solution& solution = *result.best;
    EXPECT_TRUE(KeepsRules(solution.orders));
    if (task.before) {
        EXPECT_LE(solution.score.duration, task.before->score.duration);
    }
    const PlanRun document = Reloaded(plan, task, solution);
    ASSERT_TRUE(document.hasRun);
    EXPECT_EQ(document.run.state.secsgone.Seconds(), solution.score.duration);
    EXPECT_TRUE(document.messages.empty());
    if (task.task.kind == SearchTask::Kind::Sequence) {
        EXPECT_EQ(CountsOf(solution.orders), CountsOf(task.task.orders));
        for (std::size_t i = 0; i < solution.orders.size(); ++i) {
            EXPECT_TRUE(!task.task.pinned[i] || solution.orders[i] == task.task.orders[i]);
        }
        return;
    }
    const PerItem<Byte> levels = FinalLevels(solution.orders);
    for (const ItemRow& row : ItemTable()) {
        EXPECT_GE(levels[row.item], task.task.minLevels[row.item]) << row.ItemCode;
    }
}

TEST(Search, FindsTheOptimumOfSmallPlans) {
    for (unsigned seed = 1; seed <= 100; ++seed) {
        const SearchTask task = SmallPlan(seed);
        // Default budgets for all plans would take half an hour under the sanitizers.
        const bool whole = seed % 50 == 0;
        const auto result = Search(task, whole ? SearchBudget() : kOneChain, kGoOn, Quiet);
        ASSERT_TRUE(result.best) << seed;
        EXPECT_EQ(result.best->score.duration, ProvenDuration(task)) << seed;
    }
}

TEST(Search, KeepsItsPromises) {
    const std::vector<std::pair<const char*, SearchRequest>> requests{
        {"gedraengt-01", {}},
        {"gedraengt-05", {.goal = "plan"}},
        {"gedraengt-09", {.moveProduction = true}},
        {"regelgerecht-01", {.pinnedRanges = {{2, 4}}}},
        {"regelgerecht-03", {.goal = "plan", .moveProduction = true}},
        {"regelgerecht-08", {.goal = "WKT2 FE2"}},
        {"schwere-laser", {}},
    };
    for (const auto& [name, request] : requests) {
        SCOPED_TRACE(name);
        const PlanRun document(std::filesystem::path(TARVELIN_GOLDEN) /
                               (std::string(name) + ".tvf"));
        ASSERT_TRUE(document.loaded);
        const PlanTask task = MakeTask(document.plan, request);
        Check(document.plan, task, Search(task, kOneChain, kGoOn, Quiet));
    }
}

TEST(Search, GivesTheSameWithAnyNumberOfThreads) {
    const PlanTask task = MakeTask(StarterPlan(), {.goal = "plan"});
    SearchBudget budget{.tries = 5 * SearchBudget::kChainLength, .seed = 7};
    const auto one = Search(task, budget, kGoOn, Quiet);
    budget.threads = 3;
    EXPECT_EQ(Search(task, budget, kGoOn, Quiet).best->orders, one.best->orders);
    budget.seed = 8;
    EXPECT_NE(Search(task, budget, kGoOn, Quiet).best->orders, one.best->orders);
}

TEST(Search, StopsAndKeepsTheBest) {
    const Plan& plan = StarterPlan();
    const PlanTask task = MakeTask(plan, {});
    std::atomic<bool> stop{false};
    const SearchBudget endless{.tries = std::uint64_t{1} << 50U, .threads = 2};
    SearchProgress last;
    const auto result = Search(task, endless, stop, [&](const SearchProgress& progress) {
        last = progress;
        stop = progress.gain > 0 && progress.tries > SearchBudget::kChainLength;
    });
    Check(plan, task, result);
    EXPECT_EQ(last.gain, task.before->score.duration - last.bestDuration);
    EXPECT_LE(result.best->score.duration, last.bestDuration);
    EXPECT_LT(result.tries, last.totalTries);
    EXPECT_EQ(Search(task, endless, stop, Quiet).best->orders, task.task.orders);
}

TEST(Search, FindsAnInitialListForAPlanThatNeverEnds) {
    // The research comes after the deuterium mine has been turned off.
    const Plan plan = PlanOf("GS GM GK GD GF GX:10:10:0 FE");
    const PlanTask task = MakeTask(plan, {});
    EXPECT_FALSE(task.before);
    Check(plan, task, Search(task, kOneChain, kGoOn, Quiet));
}

TEST(Search, LeavesWhatHasStarted) {
    const Plan& plan = StarterPlan();
    const auto before = StartTimesOf(StarterRun());
    const SearchRequest request{.notBefore = ParseDateTime("03.12.2026 12:00:30")};
    const PlanTask task = MakeTask(plan, request);
    ASSERT_TRUE(task.pause);
    EXPECT_EQ(task.pause->Startzeit + "/" + task.pause->Endzeit,
              "03.12.2026 10:30/03.12.2026 12:01");
    EXPECT_EQ(task.task.headSize, 31U);
    const auto result = Search(task, kOneChain, kGoOn, Quiet);
    Check(plan, task, result);
    const auto after = StartTimesOf(Reloaded(plan, task, *result.best));
    const auto head = static_cast<std::ptrdiff_t>(task.task.headSize);
    EXPECT_TRUE(std::equal(before.begin(), before.begin() + head, after.begin()));
    EXPECT_TRUE(std::all_of(after.begin() + head, after.end(),
                            [&](const auto& time) { return time >= *request.notBefore; }));
    EXPECT_LT(result.best->score.duration, task.before->score.duration);
}

/// Pinned rows of a goal keep their sequence, and the orders above them that are no economy items.
TEST(Search, KeepsPinnedRowsOfAGoal) {
    const Plan plan = PlanOf("GS GM GM GX:10:8:10 GK GD GF FE GX:10:10:10 GR GR GW FV WLJ WLJ");
    const PlanTask task = MakeTask(plan, {.goal = "plan", .pinnedRanges = {{13, 13}}});
    const auto result = Search(task, kOneChain, kGoOn, Quiet);
    Check(plan, task, result);
    std::string withoutEconomy;
    for (const Order& order : result.best->orders) {
        if (order.kind == Order::Kind::Production || !RowOf(order.item).IsEconomy()) {
            withoutEconomy += order.Tag() + " ";
        }
    }
    EXPECT_EQ(withoutEconomy, "GX:10:8:10 FE GX:10:10:10 FV WLJ WLJ ");
}

TEST(Search, SavesSittingsWithinWhatIsAllowed) {
    const PlanTask task = MakeTask(StarterPlan(), {});
    SearchBudget budget{.tries = 8 * SearchBudget::kChainLength};
    const Score fast = Search(task, budget, kGoOn, Quiet).best->score;
    budget.slackPercent = 2;
    const Score quiet = Search(task, budget, kGoOn, Quiet).best->score;
    EXPECT_LT(quiet.sittings, fast.sittings);
    EXPECT_LE(quiet.duration, fast.duration * 1.02);
}

TEST(Search, SaysWhyItCannotSearch) {
    const Plan economy = PlanOf("GM GM GK");
    Plan broken = PlanOf("GM");
    broken.LV_Bauliste.Clear();
    for (const char* const tag : {"GM", "GW", "GR"}) {
        EXPECT_TRUE(broken.LV_Bauliste.Replay(tag, RunConditions()));
    }
    Plan withoutTag = economy;
    withoutTag.parameters.UniStartZeitTag = "";
    const std::vector<std::tuple<Plan, SearchRequest, bool, const char*>> cases{
        {economy, {.goal = "plan"}, false, "Der Plan hat kein Ziel außerhalb der Wirtschaft"},
        {economy, {.goal = " "}, true, "Das Ziel ist leer"},
        {economy, {.goal = "GW2 XY3"}, true, "\"XY3\" nennt kein Item"},
        {economy, {.goal = "gw2"}, true, "\"gw2\" nennt kein Item"},
        {economy, {.goal = "GW0"}, true, "\"GW0\": die Stufe oder Anzahl muss von 1 bis 254"},
        {economy, {.goal = "GW"}, true, "\"GW\": die Stufe"},
        {economy, {.goal = "WLJ99999999999999999999"}, true, "die Stufe oder Anzahl"},
        {economy, {.goal = "WLJ254"}, true, "mehr als 254 Zeilen"},
        {economy, {.pinnedRanges = {{3, 4}}}, true, "Feste Zeilen gehen von 1 bis 3"},
        {economy, {.pinnedRanges = {{2, 1}}}, true, "Feste Zeilen gehen von 1 bis 3"},
        {broken, {}, false, "Zeile 2 (GW) hält die Regeln der Bauliste nicht:"},
        {economy,
         {.notBefore = ParseDateTime("18.11.2016 12:30:00")},
         false,
         "Alle Aufträge beginnen vor dem 18.11.2016 12:30:00"},
        {withoutTag, {}, false, ""},
        {PlanOf(""), {}, false, ""},
    };
    for (const auto& [plan, request, wrongCall, text] : cases) {
        const auto task = MakePlanTask(plan, request);
        const auto* const refusal = std::get_if<SearchRefusal>(&task);
        ASSERT_NE(refusal, nullptr) << text;
        EXPECT_EQ(refusal->wrongCall, wrongCall) << refusal->text;
        EXPECT_NE(refusal->text.find(text), std::string::npos) << refusal->text;
        EXPECT_NE(refusal->text, "");
    }
}

TEST(Search, ReachesAGoalFromNothing) {
    Plan plan = PlanOf("");
    const PlanTask task = MakeTask(plan, {.goal = "WLL1 GF2 WSS1"});
    EXPECT_FALSE(task.before);
    Check(plan, task, Search(task, kOneChain, kGoOn, Quiet));
}

}  // namespace
}  // namespace tarvelin
