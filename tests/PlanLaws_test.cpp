// The laws of every plan, tried on random ones. TARVELIN_SAAT sets the first seed, TARVELIN_PLAENE
// how many follow it.
#include <cstdlib>
#include <random>
#include <thread>

#include "PlanLaws.h"
#include "TestSupport.h"
#include "plan/Rules.h"

namespace tarvelin {
namespace {

unsigned AusUmgebung(const char* name, unsigned standard) {
    const char* const text = std::getenv(name);
    return text == nullptr ? standard : static_cast<unsigned>(std::strtoul(text, nullptr, 10));
}

/// Draws plans of all kinds: by the rules and against them, of short and full lists, on hot and
/// cold planets, for quick and slow players, with sleep.
class Plangeber {
  public:
    explicit Plangeber(unsigned saat) : m_zufall(saat) {}

    Plan Zieh() {
        Plan plan = PlanAus("");
        plan.parameters.KlickPuffer = Eins(4) ? Bis(kMaxKlickPuffer) : Bis(20);
        plan.parameters.Speedfaktor_X2 = Eins(2);
        plan.ShowDesc = Eins(2);
        ChangeTempMax(plan.parameters, std::to_string(Eins(8) ? Bis(4000) - 2000 : Bis(160) - 60));
        m_jedesBild = Eins(3);
        FuelleListe(plan.LV_Bauliste, Eins(10) ? Bis(OrderList::kMaxSize) : 1 + Bis(60));
        const DateTime start = *ParseDateTime("18.11.2006 12:30");
        for (int n = Eins(2) ? Bis(5) : 0; n > 0; --n) {
            const DateTime schlaf = start + 60 * Bis(6000);
            plan.LV_Schlafzeiten.push_back(
                {DateTimeText(schlaf), DateTimeText(schlaf + Bis(40000))});
        }
        return plan;
    }

  private:
    int Bis(int hoechster) {
        return static_cast<int>(m_zufall() % (static_cast<unsigned>(hoechster) + 1));
    }
    bool Eins(unsigned von) { return m_zufall() % von == 0; }

    void FuelleListe(BuildList& liste, int zeilen) {
        while (static_cast<int>(liste.Rows().size()) < zeilen) {
            const auto item = static_cast<ItemId>(m_zufall() % ItemTable().size());
            if (Eins(12)) {
                const auto faktor = [this] { return static_cast<Byte>(Bis(kFullFactor)); };
                EXPECT_FALSE(
                    liste.AddProduction({{faktor(), faktor(), faktor()}}, RunConditions()));
            } else if (m_jedesBild || !Refusal(item, liste.Orders())) {
                EXPECT_FALSE(liste.AddItem(item, RunConditions()));
            }
        }
    }

    std::mt19937 m_zufall;
    bool m_jedesBild = false;
};

class Gesetze : public testing::Test {
  protected:
    const unsigned Erste = AusUmgebung("TARVELIN_SAAT", 2006);
    const unsigned Plaene = AusUmgebung("TARVELIN_PLAENE", 150);
};

TEST_F(Gesetze, GeltenFuerJedenPlan) {
    for (unsigned saat = Erste; saat < Erste + Plaene; ++saat) {
        EXPECT_EQ(PruefeGesetze(Plangeber(saat).Zieh()), "") << "seed " << saat;
    }
}

TEST_F(Gesetze, ZweiLaeufeZugleichSindZweiNacheinander) {
    for (unsigned saat = Erste; saat < Erste + Plaene; saat += 2) {
        const std::array plaene{Plangeber(saat).Zieh(), Plangeber(saat + 1).Zieh()};
        std::array<std::string, 2> zugleich;
        std::thread anderer([&] { zugleich[1] = Ergebnis(plaene[1]); });
        zugleich[0] = Ergebnis(plaene[0]);
        anderer.join();
        EXPECT_EQ(zugleich[0], Ergebnis(plaene[0])) << "seed " << saat;
        EXPECT_EQ(zugleich[1], Ergebnis(plaene[1])) << "seed " << saat + 1;
    }
}

}  // namespace
}  // namespace tarvelin
