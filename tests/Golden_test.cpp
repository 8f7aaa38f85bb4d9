// Compares the results of the golden plans with the expected ones, field by field.
#include <nlohmann/json.hpp>

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

TEST_P(Golden, MatchesFieldByField) {
    const auto file = std::filesystem::path(TARVELIN_GOLDEN) / (GetParam() + ".tvf");
    const auto actual = nlohmann::json::parse(RunJson(PlanRun(file)));
    auto json = file;
    const auto expected = nlohmann::json::parse(ReadFileToString(json.replace_extension(".json")));
    for (const auto& difference : nlohmann::json::diff(expected, actual)) {
        const nlohmann::json::json_pointer position(difference["path"].get<std::string>());
        ADD_FAILURE() << difference["op"] << " " << difference["path"] << "\n  soll "
                      << (expected.contains(position) ? expected[position].dump() : "(nichts)")
                      << "\n  ist  "
                      << (actual.contains(position) ? actual[position].dump() : "(nichts)");
    }
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
