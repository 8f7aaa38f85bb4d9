// The laws of every plan, tried on random ones. TARVELIN_SEED sets the first seed, TARVELIN_PLANS
// how many follow it.
#include <cstdlib>
#include <random>
#include <thread>

#include "PlanLaws.h"
#include "TestSupport.h"
#include "plan/Rules.h"

namespace tarvelin {
namespace {

unsigned FromEnvironment(const char* name, unsigned fallback) {
    const char* const text = std::getenv(name);
    return text == nullptr ? fallback : static_cast<unsigned>(std::strtoul(text, nullptr, 10));
}

/// Draws plans of all kinds: by the rules and against them, of short and full lists, on hot and
/// cold planets, for quick and slow players, with sleep.
class PlanGenerator {
  public:
    explicit PlanGenerator(unsigned seed) : m_random(seed) {}

    Plan Next() {
        Plan plan = PlanOf("");
        plan.parameters.KlickPuffer = OneIn(4) ? Below(kMaxKlickPuffer) : Below(20);
        plan.parameters.Speedfaktor_X2 = OneIn(2);
        plan.ShowDesc = OneIn(2);
        ChangeTempMax(plan.parameters,
                      std::to_string(OneIn(8) ? Below(4000) - 2000 : Below(160) - 60));
        m_everyPicture = OneIn(3);
        FillList(plan.LV_Bauliste, OneIn(10) ? Below(OrderList::kMaxSize) : 1 + Below(60));
        const DateTime start = *ParseDateTime("18.11.2006 12:30");
        for (int n = OneIn(2) ? Below(5) : 0; n > 0; --n) {
            const DateTime sleep = start + 60 * Below(6000);
            plan.LV_Schlafzeiten.push_back(
                {DateTimeText(sleep), DateTimeText(sleep + Below(40000))});
        }
        return plan;
    }

  private:
    int Below(int highest) {
        return static_cast<int>(m_random() % (static_cast<unsigned>(highest) + 1));
    }
    bool OneIn(unsigned from) { return m_random() % from == 0; }

    void FillList(BuildList& list, int rows) {
        while (static_cast<int>(list.Rows().size()) < rows) {
            const auto item = static_cast<ItemId>(m_random() % ItemTable().size());
            if (OneIn(12)) {
                const auto factor = [this] { return static_cast<Byte>(Below(kFullFactor)); };
                EXPECT_FALSE(list.AddProduction({{factor(), factor(), factor()}}, RunConditions()));
            } else if (m_everyPicture || !Refusal(item, list.Orders())) {
                EXPECT_FALSE(list.AddItem(item, RunConditions()));
            }
        }
    }

    std::mt19937 m_random;
    bool m_everyPicture = false;
};

class PlanLaws : public testing::Test {
  protected:
    const unsigned first = FromEnvironment("TARVELIN_SEED", 2006);
    const unsigned plans = FromEnvironment("TARVELIN_PLANS", 150);
};

TEST_F(PlanLaws, HoldForEveryPlan) {
    for (unsigned seed = first; seed < first + plans; ++seed) {
        EXPECT_EQ(CheckLaws(PlanGenerator(seed).Next()), "") << "seed " << seed;
    }
}

TEST_F(PlanLaws, ParallelRunsEqualSequentialOnes) {
    for (unsigned seed = first; seed < first + plans; seed += 2) {
        const std::array pair{PlanGenerator(seed).Next(), PlanGenerator(seed + 1).Next()};
        std::array<std::string, 2> together;
        std::thread other([&] { together[1] = ResultText(pair[1]); });
        together[0] = ResultText(pair[0]);
        other.join();
        EXPECT_EQ(together[0], ResultText(pair[0])) << "seed " << seed;
        EXPECT_EQ(together[1], ResultText(pair[1])) << "seed " << seed + 1;
    }
}

}  // namespace
}  // namespace tarvelin
