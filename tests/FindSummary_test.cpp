// Tests what a find is said to change.
#include "search/FindSummary.h"

#include "TestSupport.h"

namespace tarvelin {
namespace {

/// "Row: now > find", each followed by a semicolon.
std::string RowsText(const FindSummary& summary) {
    const auto side = [](const std::optional<ListedOrder>& order) {
        return order ? order->text : "-";
    };
    std::string text;
    for (const DifferentRow& row : summary.rows) {
        text += std::to_string(row.row) + ": " + side(row.now) + " > " + side(row.find) + "; ";
    }
    return text;
}

std::vector<Order> OrdersOf(std::string_view tags) {
    const Plan plan = PlanOf(tags);
    const auto orders = plan.LV_Bauliste.Orders().All();
    return {orders.begin(), orders.end()};
}

TEST(FindSummary, NamesWhatDiffersFromThePlan) {
    struct Case {
        const char* plan;
        const char* find;
        const char* rows;
        /// Mines of metal and of crystal that come; those that go are negative.
        int metall;
        int kristall;
    };
    const std::vector<Case> cases{
        {"GS GX:5:10:10 GM", "GS GX:5:10:10 GM", "", 0, 0},
        {"GS GM GM GK", "GS GM GK", "2: Metallmine 2 > Kristallmine 1; 3: Kristallmine 1 > -; ", -1,
         0},
        {"GM", "GM GS GK", "1: - > Solarkraftwerk 1; 2: - > Kristallmine 1; ", 0, 1},
        {"GS GM GM", "GM GS GM",
         "0: Solarkraftwerk 1 > Metallmine 1; 1: Metallmine 1 > Solarkraftwerk 1; ", 0, 0},
        {"GM GX:5:10:10 GM", "GM GM GX:8:10:10",
         "1: 50% 100% 100% > Metallmine 2; 2: Metallmine 2 > 80% 100% 100%; ", 0, 0},
        {"GM GS GM", "GM GM GM",
         "1: Solarkraftwerk 1 > Metallmine 2; 2: Metallmine 2 > Metallmine 3; ", 1, 0}};
    for (const auto& [planTags, findTags, rows, metall, kristall] : cases) {
        const Plan plan = PlanOf(planTags);
        const auto task = std::get<PlanTask>(MakePlanTask(plan, {}));
        const auto find = Evaluate(task.task, OrdersOf(findTags));
        ASSERT_TRUE(find) << findTags;
        const FindSummary summary = SummaryOf(plan, task, *find);
        EXPECT_EQ(RowsText(summary), rows) << findTags;
        EXPECT_EQ(summary.DiffersFromPlan(), *rows != '\0') << findTags;
        EXPECT_EQ(summary.more[ItemId::MetMine], metall) << findTags;
        EXPECT_EQ(summary.more[ItemId::KrisMine], kristall) << findTags;
        EXPECT_EQ(summary.Gain(), task.before->score.duration - find->score.duration);
    }
}

TEST(FindSummary, SeesTheRatesThatTheRunsEndWith) {
    const Plan plan = PlanOf("GS GM GX:0:10:10");
    auto task = std::get<PlanTask>(MakePlanTask(plan, {}));
    const auto find = Evaluate(task.task, OrdersOf("GS GM"));
    const FindSummary summary = SummaryOf(plan, task, *find);
    EXPECT_LT(summary.before->rates[Resource::Metall], summary.after.rates[Resource::Metall]);
    EXPECT_EQ(summary.before->rates[Resource::Kristall], summary.after.rates[Resource::Kristall]);
    // A plan that never ends or misses the goal gains nothing.
    task.before.reset();
    EXPECT_EQ(SummaryOf(plan, task, *find).Gain(), std::nullopt);
}

}  // namespace
}  // namespace tarvelin
