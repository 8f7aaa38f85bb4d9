// Tests the search: proved optima, and what holds for every result.
#include "search/Search.h"

#include "OptimumProof.h"
#include "TestSupport.h"
#include "document/PlanRun.h"
#include "search/GoalText.h"
#include "search/PlanTask.h"
#include "search/Random.h"

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

/// What holds for any result: it keeps the rules and its duration when saved, and is never worse
/// than the plan.
void Check(const Plan& plan, const PlanTask& task, const SearchResult& result) {
    ASSERT_TRUE(result.best);
    const Solution& solution = *result.best;
    if (task.before) {
        EXPECT_LE(solution.score.duration, task.before->score.duration);
    }
    const PlanRun document = Reloaded(plan, task, solution);
    ASSERT_TRUE(document.hasRun);
    EXPECT_EQ(document.run.state.secsgone.Seconds(), solution.score.duration);
    EXPECT_TRUE(document.messages.empty());
    EXPECT_TRUE(std::holds_alternative<PlanTask>(MakePlanTask(document.plan, {})));
    if (task.task.kind == SearchTask::Kind::Sequence) {
        EXPECT_TRUE(std::ranges::is_permutation(solution.orders, task.task.orders));
        for (std::size_t i = 0; i < solution.orders.size(); ++i) {
            EXPECT_TRUE(!task.task.pinned[i] || solution.orders[i] == task.task.orders[i]);
        }
        return;
    }
    const PerItem<Byte> levels = FinalLevels(solution.orders);
    EXPECT_TRUE(std::ranges::equal(levels, task.task.minLevels, std::ranges::greater_equal()));
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
    const auto golden = [](const std::string& name) {
        return PlanRun(std::filesystem::path(TARVELIN_GOLDEN) / (name + ".tvf")).plan;
    };
    struct Case {
        Plan plan;
        SearchRequest request;
        bool hasResult = true;
    };
    const std::vector<Case> cases{
        {golden("gedraengt-01"), {}},
        {golden("gedraengt-05"), {.goal = "plan"}},
        {golden("gedraengt-09"), {.moveProduction = true}},
        {golden("regelgerecht-01"), {.pinnedRanges = {{2, 4}}}},
        {golden("regelgerecht-03"), {.goal = "plan", .moveProduction = true}},
        {golden("regelgerecht-08"), {.goal = "Transporter 2, FE2"}, false},
        {golden("schwere-laser"), {}},
        // The research comes after the deuterium mine has been turned off.
        {PlanOf("GS GM GK GD GF GX:10:10:0 FE"), {}, false},
        {PlanOf("GS GD GF GM GX:10:10:0 FE"), {.goal = "plan", .pinnedRanges = {{1, 3}}}, false},
        {PlanOf(""), {.goal = "WLL1 GF2 WSS1"}, false},
    };
    for (const auto& [plan, request, hasResult] : cases) {
        SCOPED_TRACE(plan.LV_Bauliste.Rows().size());
        const PlanTask task = MakeTask(plan, request);
        EXPECT_EQ(task.before.has_value(), hasResult);
        Check(plan, task, Search(task, kOneChain, kGoOn, Quiet));
    }
}

TEST(Search, GivesTheSameWithAnyNumberOfThreads) {
    const PlanTask task = MakeTask(StarterRun().plan, {.goal = "plan"});
    SearchBudget budget{.tries = 5 * SearchBudget::kChainLength, .seed = 7};
    const auto one = Search(task, budget, kGoOn, Quiet);
    for (const unsigned threads : {0U, 3U}) {
        budget.threads = threads;
        EXPECT_EQ(Search(task, budget, kGoOn, Quiet).best->orders, one.best->orders);
    }
    budget.seed = 8;
    EXPECT_NE(Search(task, budget, kGoOn, Quiet).best->orders, one.best->orders);
}

TEST(Search, StopsAndKeepsTheBest) {
    const Plan& plan = StarterRun().plan;
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

TEST(Search, LeavesWhatHasStarted) {
    const Plan& plan = StarterRun().plan;
    const SearchRequest request{.notBefore = ParseDateTime("03.12.2026 12:00:30")};
    const PlanTask task = MakeTask(plan, request);
    ASSERT_TRUE(task.pause);
    EXPECT_EQ(task.pause->Startzeit + "/" + task.pause->Endzeit,
              "03.12.2026 10:30/03.12.2026 12:01");
    EXPECT_EQ(task.task.headSize, 31U);
    const auto result = Search(task, kOneChain, kGoOn, Quiet);
    Check(plan, task, result);
    const Schedule& before = StarterRun().run.LV_Bauzeiten;
    const Schedule after = Reloaded(plan, task, *result.best).run.LV_Bauzeiten;
    for (std::size_t i = 0; i < after.size(); ++i) {
        EXPECT_TRUE(i < task.task.headSize ? after[i].start == before[i].start
                                           : after[i].start >= *request.notBefore);
    }
    EXPECT_LT(result.best->score.duration, task.before->score.duration);
}

TEST(Search, MovesRowsThatAreNotPinned) {
    const auto found = [](const Plan& plan, const SearchRequest& request, bool economy) {
        const PlanTask task = MakeTask(plan, request);
        const auto result = Search(task, kOneChain, kGoOn, Quiet);
        Check(plan, task, result);
        std::string tags;
        for (const Order& order : result.best->orders) {
            const bool isEconomy = order.kind == Order::Kind::Item && RowOf(order.item).IsEconomy();
            tags += economy || !isEconomy ? order.Tag() + " " : "";
        }
        return tags;
    };
    EXPECT_EQ(found(PlanOf("GS GS GD GR GM"), {.pinnedRanges = {{1, 3}}}, true), "GS GS GD GM GR ");
    // Pinned rows of a goal keep their sequence, and the orders above that are no economy items.
    EXPECT_EQ(found(PlanOf("GS GM GM GX:10:8:10 GK GD GF FE GX:10:10:10 GR GR GW FV WLJ WLJ"),
                    {.goal = "plan", .pinnedRanges = {{13, 13}}}, false),
              "GX:10:8:10 FE GX:10:10:10 FV WLJ WLJ ");
}

TEST(Search, SavesSittingsWithinWhatIsAllowed) {
    const PlanTask task = MakeTask(StarterRun().plan, {});
    SearchBudget budget{.tries = 8 * SearchBudget::kChainLength};
    const Score fast = Search(task, budget, kGoOn, Quiet).best->score;
    budget.slackPercent = 2;
    const Score quiet = Search(task, budget, kGoOn, Quiet).best->score;
    EXPECT_LT(quiet.sittings, fast.sittings);
    EXPECT_LE(quiet.duration, fast.duration * 1.02);
}

TEST(Search, SaysWhyItCannotSearch) {
    const Plan economy = PlanOf("GM GM GK");
    Plan withoutTag = economy;
    withoutTag.parameters.UniStartZeitTag = "";
    const std::vector<std::tuple<Plan, SearchRequest, bool, const char*>> cases{
        {economy, {.goal = "plan"}, false, "Der Plan hat kein Ziel außerhalb der Wirtschaft"},
        {economy, {.goal = " "}, true, "Das Ziel ist leer"},
        {economy, {.goal = "WLJ254"}, true, "mehr als 254 Zeilen"},
        {economy, {.pinnedRanges = {{3, 4}}}, true, "Feste Zeilen gehen von 1 bis 3"},
        {economy, {.pinnedRanges = {{2, 1}}}, true, "Feste Zeilen gehen von 1 bis 3"},
        {PlanOf("GM GW GR"), {}, false, "Zeile 2 (GW) hält die Regeln der Bauliste nicht:"},
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

/// The goal that a text means, in codes, or the message.
std::string Understood(const char* text) {
    const auto parsed = ParseGoal(text);
    const auto* const goal = std::get_if<Goal>(&parsed);
    if (goal == nullptr) {
        return std::get<std::string>(parsed);
    }
    std::string codes = goal->ofPlan ? "plan" : "";
    for (const ItemRow& row : ItemTable()) {
        const int level = goal->levels[row.item];
        codes += level == 0 ? "" : std::string(row.ItemCode) + std::to_string(level) + " ";
    }
    return codes;
}

TEST(Goal, IsUnderstoodAsAPlayerTypesIt) {
    const std::vector<std::pair<const char*, const char*>> cases{
        {"GW2 FV2 WKT1", "GW2 WKT1 FV2 "},
        {"werft 2, kl. transporter", "GW2 WKT1 "},
        {"gw2 wkt", "GW2 WKT1 "},
        {"transporter2werft", "GW1 WKT2 "},
        {"kl transporter 3 leichter laser LEICHTER JÄGER 007", "WLJ7 WKT3 WLL1 "},
        {"leichter jaeger,, verb.trieb , rakenten\t4", "WLJ1 WR4 FV1 "},
        {"ichter jä", "WLJ1 "},
        {"Kl. Transporter Nr: 2, MetallMine Stufe: 3", "GM3 WKT2 "},
        {"gm3 gm2 metall", "GM3 "},
        {"PLAN", "plan"},
        {" Der  ganze Plan", "plan"},
        {"GW2 XY3", "\"XY3\" nennt kein Item: erwartet wird etwa Werft 2 oder GW2"},
        {"kl. raumschiff",
         "\"kl\" ist nicht eindeutig: Kleiner Transporter oder Kleine "
         "Schildkuppel?"},
        {"e",
         "\"e\" ist nicht eindeutig: Metallmine, Kristallmine, Deuteriummine, Solarkraftwerk, "
         "Roboterfabrik oder anderes?"},
        {"2 werft", "\"2\": vor der Zahl fehlt ein Name, etwa Werft 2"},
        {"werft  0", "\"werft  0\": die Stufe oder Anzahl muss von 1 bis 254 gehen"},
        {"kuppel 2", "\"kuppel 2\": die Stufe oder Anzahl muss von 1 bis 1 gehen"},
        {"\xff\xc3", "\"\xff\xc3\" nennt kein Item: erwartet wird etwa Werft 2 oder GW2"},
        {", Stufe", "Das Ziel ist leer: erwartet wird etwa \"Werft 2, Kl. Transporter\" oder plan"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(Understood(text), expected) << text;
    }
}

TEST(Goal, ComesBackFromItsText) {
    Random random(1);
    for (int n = 0; n < 200; ++n) {
        Goal goal;
        std::string words;
        for (const ItemRow& row : ItemTable()) {
            if (random.OneIn(3)) {
                goal.levels[row.item] =
                    static_cast<Byte>(1 + random.Below(HighestInGoal(row.item)));
                const std::array<std::string_view, 5> names{
                    row.ItemCode, row.listText, row.reportText, row.name, row.HoverName()};
                words += std::string(names.at(random.Below(names.size()))) +
                         std::to_string(goal.levels[row.item]) + " ";
            }
        }
        if (goal != Goal()) {
            EXPECT_EQ(std::get<Goal>(ParseGoal(GoalText(goal))), goal) << GoalText(goal);
            EXPECT_EQ(std::get<Goal>(ParseGoal(words)), goal) << words;
        }
    }
    const Goal ofPlan{.ofPlan = true};
    EXPECT_EQ(std::get<Goal>(ParseGoal(GoalText(ofPlan))), ofPlan);
}

TEST(Goal, IsCompleted) {
    const std::vector<std::tuple<std::string, std::size_t, std::vector<std::string>>> cases{
        {"werft 2, KL. Tr", 9, {"Kleiner Transporter"}},
        {"werft leichter L", 6, {"Leichter Laser"}},
        {"fs", 0, {"Spionagetechnik", "Schildtechnik"}},
        {"rak", 0, {"Raketenwerfer"}},
        {"labo", 0, {"Forschungslabor"}},
        {"d",
         0,
         {"der ganze Plan", "Deuteriummine", "Spionagesonde", "Kleine Schildkuppel",
          "Schildtechnik"}},
        {"GW der", 0, {}},
        {"leichter jäger", 0, {}},
        {"plan", 0, {}},
        {"werft 2", 0, {}},
        {"werft, ", 0, {}},
    };
    for (const auto& [text, begin, names] : cases) {
        const GoalCompletions completions = CompleteGoal(text);
        EXPECT_EQ(completions.names, names) << text;
        EXPECT_EQ(completions.begin, begin) << text;
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
