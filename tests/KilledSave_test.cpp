// Saves of a process that dies, at each call of the platform.
#include <array>
#include <cstdlib>
#include <utility>

#include "FaultyFileSystem.h"
#include "TestSupport.h"
#include "persistence/Configuration.h"

namespace tarvelin {
namespace {

constexpr const char* kWann = "TARVELIN_TOD";
constexpr int kTot = 99;

/// Ends its process at the n-th call, on the spot: nothing of ours is done any more.
class Todessystem final : public Stoersystem {
  public:
    explicit Todessystem(int n) : Stoersystem(n, Ausfallart::Einmal) {}

  private:
    void VorAusfall() const override { std::_Exit(kTot); }
};

TEST(Dateiersatz, RaeumtWegWasGetoeteteProzesseLiessen) {
    const Ordner ordner;
    // No process has the highest number; the one with the lowest always runs, on one platform.
    for (const char* const name : {".tarvelin-4194999.tmp", ".tarvelin-1.tmp", ".tarvelin-x.tmp"}) {
        SchreibeDatei(ordner / name, "halb");
    }
    ASSERT_TRUE(Configuration(ordner / "").Write({{Configuration::kFirststart, "0"}}));
    EXPECT_FALSE(std::filesystem::exists(ordner / ".tarvelin-4194999.tmp"));
    EXPECT_EQ(ordner.Eintraege(), kWindows ? 2U : 3U);
    EXPECT_TRUE(NativeFileSystem().IsRunning(NativeFileSystem().ProcessId()));
}

/// Two plans in turn, and a key of the configuration, in a folder that a process of its own shares.
class Toetung : public testing::Test {
  protected:
    static void Speichere(const std::filesystem::path& ort, std::size_t welchen,
                          const FileSystem& system) {
        // Saved in turn over each other they give the same bytes each time.
        const std::array plaene{PlanAus("GM GS GM GS"), PlanAus("GK GX:8:10:5 GD GD")};
        static_cast<void>(SaveBauliste(ort / "plan.tvf", plaene.at(welchen), system));
        static_cast<void>(Configuration(ort, system)
                              .Write({{Configuration::kFirststart, std::to_string(welchen)}}));
    }

    [[nodiscard]] std::pair<std::string, std::string> Bytes() const {
        return {LiesDatei(m_ordner / "plan.tvf"), LiesDatei(m_ordner / "config.cfg")};
    }

    /// Runs the save of the second plan in a process of its own. Whether it died at the n-th call.
    [[nodiscard]] bool StirbtBei(int n) const {
        const std::string stelle = kWann + ("=" + std::to_string(n));
        const int code = FuehreAus(
            m_ordner, (kWindows ? "set " + stelle + "&& " : stelle + " ") +
                          InZeichen(TARVELIN_TESTS) +
                          " --gtest_also_run_disabled_tests --gtest_filter=Toetung.DISABLED_Opfer" +
                          (kWindows ? " >NUL" : " >/dev/null"));
        EXPECT_TRUE(code == kTot || code == 0) << code;
        return code == kTot;
    }

    const Ordner m_ordner;
};

// Run by the other one.
TEST_F(Toetung, DISABLED_Opfer) {
    const char* const wann = std::getenv(kWann);
    ASSERT_NE(wann, nullptr);
    Speichere(".", 1, Todessystem(std::stoi(wann)));
}

TEST_F(Toetung, BeiJedemAufrufLaesstDenAltenOderDenNeuenPlan) {
    std::array<std::pair<std::string, std::string>, 2> bytes;
    for (const std::size_t welcher : {0U, 1U, 0U}) {
        Speichere(m_ordner / "", welcher, NativeFileSystem());
        bytes.at(welcher) = Bytes();
    }
    int n = 1;
    for (; StirbtBei(n); ++n) {
        SCOPED_TRACE("call " + std::to_string(n));
        const auto [plan, konfiguration] = Bytes();
        EXPECT_TRUE(plan == bytes[0].first || plan == bytes[1].first) << plan;
        EXPECT_TRUE(konfiguration == bytes[0].second || konfiguration == bytes[1].second);
        EXPECT_LE(m_ordner.Eintraege(), 3U);  // one that was being written
        Speichere(m_ordner / "", 0, NativeFileSystem());
        EXPECT_EQ(Bytes(), bytes[0]);
        EXPECT_EQ(m_ordner.Eintraege(), 2U);
    }
    EXPECT_GE(n, 28);
    EXPECT_EQ(Bytes(), bytes[1]);
}

}  // namespace
}  // namespace tarvelin
