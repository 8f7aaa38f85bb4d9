// Saves under a platform that fails: each call once, each kind of call for good, all of them for
// good.

#include "FaultyFileSystem.h"
#include "TestSupport.h"
#include "persistence/AtomicWrite.h"
#include "persistence/Configuration.h"

namespace tarvelin {
namespace {

constexpr std::string_view kAlt = "; von Hand\r\n[Einstellungen]\nTempMax=7\n[Eigenes]\nx=1";

/// A save over a plan of somebody's own making.
class Ausfall : public testing::TestWithParam<Ausfallart> {
  protected:
    /// Whether only what the call itself left can lie there: no deletion worked any more.
    static constexpr bool BleibtLiegen(Ausfallart art) { return art == Ausfallart::AllesFuerImmer; }

    /// Lets the n-th call of `tat` fail, for n from 1 until it has so many no more, and looks at
    /// the folder after each. How often something failed.
    template <class Tat, class Blick>
    int Probiere(Tat tat, Blick blick) {
        int n = 1;
        for (bool gestoert = true; gestoert; ++n) {
            SCOPED_TRACE("call " + std::to_string(n));
            SchreibeDatei(m_ordner / "plan.tvf", kAlt);
            SchreibeDatei(m_ordner / "config.cfg", kAlt);
            const Stoersystem system(n, GetParam());
            tat(system);
            m_aufrufe += std::string(system.Gestoert()) + " ";
            gestoert = system.HatGestoert();
            blick();
            if (!BleibtLiegen(GetParam())) {
                EXPECT_EQ(m_ordner.Eintraege(), 2U);
            }
            // What a failed deletion left goes with the next save.
            EXPECT_TRUE(WriteFileAtomically(m_ordner / "plan.tvf", kAlt));
            EXPECT_EQ(m_ordner.Eintraege(), 2U);
        }
        return n - 2;
    }

    const Ordner m_ordner;
    /// Calls in their order.
    std::string m_aufrufe;
    const Plan m_plan = PlanAus("GM GS GX:8:10:5 GK");
};

TEST_P(Ausfall, PlanIstDerAlteOderDerNeue) {
    IniFile erwartet(kAlt);
    WritePlan(m_plan, erwartet);
    bool gespeichert = false;
    const int ausfaelle = Probiere(
        [&](const FileSystem& system) {
            gespeichert = SaveBauliste(m_ordner / "plan.tvf", m_plan, system);
        },
        [&] {
            EXPECT_EQ(LiesDatei(m_ordner / "plan.tvf"),
                      gespeichert ? erwartet.Bytes() : std::string(kAlt));
        });
    EXPECT_TRUE(gespeichert);
    EXPECT_GE(ausfaelle, 14);
    // The bytes lie on the disk before they get the name.
    EXPECT_TRUE(
        m_aufrufe.ends_with(" Schreibe BringAufPlatte Schliesse BenenneUm BringOrdnerAufPlatte  "))
        << m_aufrufe;
}

TEST_P(Ausfall, KonfigurationHatAlleOderKeinenNeuenWert) {
    const Configuration::Values werte{{Configuration::kMode, "3"},
                                      {Configuration::kFirststart, "0"}};
    IniFile neu(kAlt);
    for (const auto& [key, wert] : werte) {
        neu.WriteINI(key.Section, key.Key, wert);
    }
    Probiere(
        [&](const FileSystem& system) {
            static_cast<void>(Configuration(m_ordner / "", system).Write(werte));
        },
        [&] {
            const std::string config = LiesDatei(m_ordner / "config.cfg");
            EXPECT_TRUE(config == kAlt || config == neu.Bytes()) << config;
        });
}

INSTANTIATE_TEST_SUITE_P(Arten, Ausfall,
                         testing::Values(Ausfallart::Einmal, Ausfallart::DieserAufrufFuerImmer,
                                         Ausfallart::AllesFuerImmer));

}  // namespace
}  // namespace tarvelin
