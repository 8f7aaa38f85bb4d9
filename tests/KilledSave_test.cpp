// Saves of a process that dies, at each call of the platform.
#include <array>
#include <cstdlib>
#include <utility>

#include "FaultyFileSystem.h"
#include "TestSupport.h"
#include "persistence/Configuration.h"

namespace tarvelin {
namespace {

constexpr const char* kWhen = "TARVELIN_KILL_AT";
constexpr int kDead = 99;

/// Ends its process at the n-th call, on the spot: nothing of ours is done any more.
class KillingFileSystem final : public FaultyFileSystem {
  public:
    explicit KillingFileSystem(int n) : FaultyFileSystem(n, FaultKind::Once) {}

  private:
    void BeforeFault() const override { std::_Exit(kDead); }
};

TEST(AtomicWrite, RemovesWhatKilledProcessesLeft) {
    const TempFolder folder;
    // No process has the highest number; the one with the lowest always runs, on one platform.
    for (const char* const name : {".tarvelin-4194999.tmp", ".tarvelin-1.tmp", ".tarvelin-x.tmp"}) {
        WriteFile(folder / name, "halb");
    }
    ASSERT_TRUE(Configuration(folder / "").Write({{Configuration::kFirststart, "0"}}));
    EXPECT_FALSE(std::filesystem::exists(folder / ".tarvelin-4194999.tmp"));
    EXPECT_EQ(folder.Entries(), kWindows ? 2U : 3U);
    EXPECT_TRUE(NativeFileSystem().IsRunning(NativeFileSystem().ProcessId()));
}

/// Two plans in turn, and a key of the configuration, in a folder that a process of its own shares.
class KilledSave : public testing::Test {
  protected:
    static void Save(const std::filesystem::path& position, std::size_t which,
                     const FileSystem& system) {
        // Saved in turn over each other they give the same bytes each time.
        const std::array plans{PlanOf("GM GS GM GS"), PlanOf("GK GX:8:10:5 GD GD")};
        static_cast<void>(SaveBauliste(position / "plan.tvf", plans.at(which), system));
        Configuration(position, system)
            .Write({{Configuration::kFirststart, std::to_string(which)}});
    }

    [[nodiscard]] std::pair<std::string, std::string> Bytes() const {
        return {ReadFileToString(m_folder / "plan.tvf"), ReadFileToString(m_folder / "config.cfg")};
    }

    /// Runs the save of the second plan in a process of its own. Whether it died at the n-th call.
    [[nodiscard]] bool DiesAt(int n) const {
        const std::string position = kWhen + ("=" + std::to_string(n));
        const int code = Execute(
            m_folder,
            (kWindows ? "set " + position + "&& " : position + " ") + Quoted(TARVELIN_TESTS) +
                " --gtest_also_run_disabled_tests --gtest_filter=KilledSave.DISABLED_Victim" +
                (kWindows ? " >NUL" : " >/dev/null"));
        EXPECT_TRUE(code == kDead || code == 0) << code;
        return code == kDead;
    }

    const TempFolder m_folder;
};

// Run by the other one.
TEST_F(KilledSave, DISABLED_Victim) {
    const char* const when = std::getenv(kWhen);
    ASSERT_NE(when, nullptr);
    Save(".", 1, KillingFileSystem(std::stoi(when)));
}

TEST_F(KilledSave, AtEachCallLeavesTheOldOrTheNewPlan) {
    std::array<std::pair<std::string, std::string>, 2> bytes;
    for (const std::size_t which : {0U, 1U, 0U}) {
        Save(m_folder / "", which, NativeFileSystem());
        bytes.at(which) = Bytes();
    }
    int n = 1;
    for (; DiesAt(n); ++n) {
        SCOPED_TRACE("call " + std::to_string(n));
        const auto [plan, configuration] = Bytes();
        EXPECT_TRUE(plan == bytes[0].first || plan == bytes[1].first) << plan;
        EXPECT_TRUE(configuration == bytes[0].second || configuration == bytes[1].second);
        EXPECT_LE(m_folder.Entries(), 3U);  // one that was being written
        Save(m_folder / "", 0, NativeFileSystem());
        EXPECT_EQ(Bytes(), bytes[0]);
        EXPECT_EQ(m_folder.Entries(), 2U);
    }
    EXPECT_GE(n, 28);
    EXPECT_EQ(Bytes(), bytes[1]);
}

}  // namespace
}  // namespace tarvelin
