// Compares the results of the golden plans with the expected ones: a field or a row of a table a
// line.
#include <sstream>

#include "TestSupport.h"
#include "export/RunReport.h"
#include "plan/Rules.h"

namespace tarvelin {
namespace {

std::vector<std::string> Plans() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(TARVELIN_GOLDEN)) {
        if (entry.path().extension() == ".tvf") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::ranges::sort(names);
    return names;
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, MatchesLineByLine) {
    auto file = std::filesystem::path(TARVELIN_GOLDEN) / (GetParam() + ".tvf");
    std::istringstream actual(RunJson(PlanRun(file)));
    std::istringstream expected(ReadFileToString(file.replace_extension(".json")));
    std::string line;
    std::string expectedLine;
    for (int number = 1; std::getline(expected, expectedLine); ++number) {
        line.clear();
        std::getline(actual, line);
        EXPECT_EQ(line, expectedLine) << "line " << number;
    }
    EXPECT_FALSE(std::getline(actual, line)) << line;
}

INSTANTIATE_TEST_SUITE_P(Plans, Golden, testing::ValuesIn(Plans()), [](const auto& testCase) {
    std::string name = testCase.param;
    std::ranges::replace(name, '-', '_');
    return name;
});

TEST(StarterPlan, KeepsTheRulesAndRunsWithoutAMessage) {
    const PlanRun document(std::filesystem::path(TARVELIN_SOURCE_DIR) / "data/saves/basic.tvf");
    EXPECT_TRUE(document.hasRun);
    EXPECT_TRUE(document.messages.empty());
    const auto orders = document.plan.LV_Bauliste.Orders().All();
    EXPECT_GE(orders.size(), 30U);
    EXPECT_LE(orders.size(), 60U);
    OrderList list;
    for (const Order& order : orders) {
        ASSERT_EQ(order.kind, Order::Kind::Item);
        EXPECT_FALSE(Refusal(order.item, list)) << order.Tag();
        list.Append(order);
    }
}

}  // namespace
}  // namespace tarvelin
