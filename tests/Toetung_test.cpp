// Saves of a process that is killed, at each call of the platform.
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "Ausfall.h"
#include "Hilfen.h"
#include "persistence/Konfiguration.h"

namespace tarvelin {
namespace {

/// Kills its process at the n-th call.
class Todessystem final : public Stoersystem {
  public:
    explicit Todessystem(int n) : Stoersystem(n, Ausfallart::Einmal) {}

  private:
    void VorAusfall() const override { ::kill(::getpid(), SIGKILL); }
};

/// Runs `tat` in a process of its own. Whether it was killed.
template <class Tat>
bool StirbtBei(Tat tat) {
    const pid_t kind = ::fork();
    if (kind == 0) {
        tat();
        ::_exit(0);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(kind, &status, 0), kind);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

TEST(Dateiersatz, RaeumtWegWasGetoeteteProzesseLiessen) {
    const Ordner ordner;
    // No process has the highest number; the one with the lowest always runs.
    for (const char* const name : {".tarvelin-4194999.tmp", ".tarvelin-1.tmp", ".tarvelin-x.tmp"}) {
        SchreibeDatei(ordner / name, "halb");
    }
    ASSERT_TRUE(Konfiguration(ordner / "").Schreibe({{Konfiguration::kFirststart, "0"}}));
    EXPECT_FALSE(std::filesystem::exists(ordner / ".tarvelin-4194999.tmp"));
    EXPECT_EQ(ordner.Eintraege(), 3U);
}

/// Two plans in turn, and a key of the configuration.
class Toetung : public testing::Test {
  protected:
    Toetung() {
        Speichere(0, Platte());
        for (std::size_t i = 0; i < m_plaene.size(); ++i) {
            Profil profil(LiesDatei(Datei()));
            SchreibePlan(m_plaene[i], profil);
            m_bytes.push_back(profil.Bytes());
            SchreibeKonfiguration(i, Platte());
            m_konfigurationen.push_back(LiesDatei(m_ordner / "config.cfg"));
        }
    }

    [[nodiscard]] std::filesystem::path Datei() const { return m_ordner / "plan.tvf"; }
    void Speichere(std::size_t welchen, const Dateisystem& system) const {
        static_cast<void>(SaveBauliste(Datei(), m_plaene.at(welchen), system));
        SchreibeKonfiguration(welchen, system);
    }
    void SchreibeKonfiguration(std::size_t welche, const Dateisystem& system) const {
        static_cast<void>(Konfiguration(m_ordner / "", system)
                              .Schreibe({{Konfiguration::kFirststart, std::to_string(welche)}}));
    }
    void PruefeOrdner() {
        EXPECT_EQ(std::ranges::count(m_bytes, LiesDatei(Datei())), 1);
        EXPECT_EQ(std::ranges::count(m_konfigurationen, LiesDatei(m_ordner / "config.cfg")), 1);
        EXPECT_LE(m_ordner.Eintraege(), 3U);  // one that was being written
        Speichere(0, Platte());
        EXPECT_EQ(LiesDatei(Datei()), m_bytes[0]);
        EXPECT_EQ(m_ordner.Eintraege(), 2U);
    }

    const Ordner m_ordner;
    // Saved in turn over each other they give the same bytes each time.
    const std::vector<Plan> m_plaene{PlanAus("GM GS GM GS"), PlanAus("GK GX:8:10:5 GD GD")};
    std::vector<std::string> m_bytes;
    std::vector<std::string> m_konfigurationen;
};

TEST_F(Toetung, BeiJedemAufrufLaesstDenAltenOderDenNeuenPlan) {
    int n = 1;
    while (StirbtBei([&] { Speichere(1, Todessystem(n)); })) {
        SCOPED_TRACE("call " + std::to_string(n));
        PruefeOrdner();
        ++n;
    }
    EXPECT_GE(n, 28);
}

}  // namespace
}  // namespace tarvelin
