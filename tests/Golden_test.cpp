// Plan files with their whole expected result, compared field by field.
#include <nlohmann/json.hpp>

#include "TestSupport.h"
#include "console/RunReport.h"
#include "plan/Rules.h"

namespace tarvelin {
namespace {

std::vector<std::string> Plaene() {
    std::vector<std::string> namen;
    for (const auto& eintrag : std::filesystem::directory_iterator(TARVELIN_GOLDEN)) {
        if (eintrag.path().extension() == ".tvf") {
            namen.push_back(eintrag.path().stem().string());
        }
    }
    std::ranges::sort(namen);
    return namen;
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, ErgibtFeldFuerFeldDasErwartete) {
    const auto datei = std::filesystem::path(TARVELIN_GOLDEN) / (GetParam() + ".tvf");
    const auto ist = nlohmann::json::parse(JsonText(PlanRun(datei)));
    auto json = datei;
    const auto soll = nlohmann::json::parse(LiesDatei(json.replace_extension(".json")));
    for (const auto& unterschied : nlohmann::json::diff(soll, ist)) {
        const nlohmann::json::json_pointer ort(unterschied["path"].get<std::string>());
        ADD_FAILURE() << unterschied["op"] << " " << unterschied["path"] << "\n  soll "
                      << (soll.contains(ort) ? soll[ort].dump() : "(nichts)") << "\n  ist  "
                      << (ist.contains(ort) ? ist[ort].dump() : "(nichts)");
    }
}

INSTANTIATE_TEST_SUITE_P(Plaene, Golden, testing::ValuesIn(Plaene()), [](const auto& fall) {
    std::string name = fall.param;
    std::ranges::replace(name, '-', '_');
    return name;
});

TEST(Starterplan, HaeltDieRegelnUndLaeuftOhneMeldung) {
    const PlanRun lauf(std::filesystem::path(TARVELIN_SOURCE_DIR) / "data/saves/basic.tvf");
    EXPECT_TRUE(lauf.hasRun);
    EXPECT_TRUE(lauf.messages.empty());
    const auto orders = lauf.plan.LV_Bauliste.Orders().All();
    EXPECT_GE(orders.size(), 30U);
    EXPECT_LE(orders.size(), 60U);
    OrderList liste;
    for (const Order& order : orders) {
        ASSERT_EQ(order.kind, Order::Kind::Item);
        EXPECT_FALSE(Refusal(order.item, liste)) << order.Tag();
        liste.Append(order);
    }
}

}  // namespace
}  // namespace tarvelin
