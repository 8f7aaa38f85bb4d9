// Random plans of all kinds.
#pragma once

#include <random>

#include "TestSupport.h"
#include "plan/Rules.h"

namespace tarvelin {

/// Makes random plans of all kinds: keeping and breaking the rules, short and full lists, hot and
/// cold planets, all click buffers, with and without sleep.
class PlanGenerator {
  public:
    explicit PlanGenerator(unsigned seed) : m_random(seed) {}

    Plan Next() {
        Plan plan = PlanOf("");
        plan.parameters.KlickPuffer = OneIn(4) ? UpTo(kMaxKlickPuffer) : UpTo(20);
        plan.parameters.Speedfaktor_X2 = OneIn(2);
        plan.ShowDesc = OneIn(2);
        ChangeTempMax(plan.parameters,
                      std::to_string(OneIn(8) ? UpTo(4000) - 2000 : UpTo(160) - 60));
        m_everyPicture = OneIn(3);
        FillList(plan.LV_Bauliste, OneIn(10) ? UpTo(OrderList::kMaxSize) : 1 + UpTo(60));
        const DateTime start = *ParseDateTime("18.11.2006 12:30");
        for (int n = OneIn(2) ? UpTo(5) : 0; n > 0; --n) {
            const DateTime sleep = start + 60 * UpTo(6000);
            plan.LV_Schlafzeiten.push_back(
                {DateTimeText(sleep), DateTimeText(sleep + UpTo(40000))});
        }
        return plan;
    }

  private:
    int UpTo(int max) { return static_cast<int>(m_random() % (static_cast<unsigned>(max) + 1)); }
    bool OneIn(unsigned n) { return m_random() % n == 0; }

    void FillList(BuildList& list, int rows) {
        while (static_cast<int>(list.Rows().size()) < rows) {
            const auto item = static_cast<ItemId>(m_random() % ItemTable().size());
            if (OneIn(12)) {
                const auto factor = [this] { return static_cast<Byte>(UpTo(kFullFactor)); };
                EXPECT_FALSE(list.AddProduction({{factor(), factor(), factor()}}, RunConditions()));
            } else if (m_everyPicture || !Refusal(item, list.Orders())) {
                EXPECT_FALSE(list.AddItem(item, RunConditions()));
            }
        }
    }

    std::mt19937 m_random;
    bool m_everyPicture = false;
};

}  // namespace tarvelin
