// Kills a process at each system call of a save, and checks what is left on the disk.
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

/// Ends its process at the n-th call at once, without any clean-up.
class KillingFileSystem final : public FaultyFileSystem {
  public:
    explicit KillingFileSystem(int n) : FaultyFileSystem(n, FaultKind::Once) {}

  private:
    void BeforeFault() const override { std::_Exit(kDead); }
};

TEST(AtomicWrite, RemovesWhatKilledProcessesLeft) {
    const TempFolder folder;
    // No process has the first id. On Linux process 1 always runs, on Windows it never does.
    for (const char* const name : {".tarvelin-4194999.tmp", ".tarvelin-1.tmp", ".tarvelin-x.tmp"}) {
        WriteFile(folder / name, "halb");
    }
    ASSERT_TRUE(Configuration(folder / "").Write({{Configuration::kFirststart, "0"}}));
    EXPECT_FALSE(std::filesystem::exists(folder / ".tarvelin-4194999.tmp"));
    EXPECT_EQ(folder.Entries(), kWindows ? 2U : 3U);
    EXPECT_TRUE(NativeFileSystem().IsRunning(NativeFileSystem().ProcessId()));
}

/// Saves one of two plans and a configuration key in a folder, also from a process of its own.
class KilledSave : public testing::Test {
  protected:
    static void Save(const std::filesystem::path& folder, std::size_t which,
                     const FileSystem& system) {
        // A save keeps foreign lines: the bytes depend on what was there, and repeat if saved in
        // turn.
        const std::array plans{PlanOf("GM GS GM GS"), PlanOf("GK GX:8:10:5 GD GD")};
        static_cast<void>(SaveBauliste(folder / "plan.tvf", plans.at(which), system));
        Configuration(folder, system).Write({{Configuration::kFirststart, std::to_string(which)}});
    }

    [[nodiscard]] std::pair<std::string, std::string> Bytes() const {
        return {ReadFileToString(m_folder / "plan.tvf"), ReadFileToString(m_folder / "config.cfg")};
    }

    /// Saves the second plan in a process that is to die at the n-th call. Whether it got that far.
    [[nodiscard]] bool DiesAt(int n) const {
        const std::string variable = kWhen + ("=" + std::to_string(n));
        const int code = Execute(
            m_folder,
            (kWindows ? "set " + variable + "&& " : variable + " ") + Quoted(TARVELIN_TESTS) +
                " --gtest_also_run_disabled_tests --gtest_filter=KilledSave.DISABLED_Victim" +
                (kWindows ? " >NUL" : " >/dev/null"));
        EXPECT_TRUE(code == kDead || code == 0) << code;
        return code == kDead;
    }

    const TempFolder m_folder;
};

// The process that dies, started by DiesAt.
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
        EXPECT_LE(m_folder.Entries(), 3U);  // perhaps with a temporary file
        Save(m_folder / "", 0, NativeFileSystem());
        EXPECT_EQ(Bytes(), bytes[0]);
        EXPECT_EQ(m_folder.Entries(), 2U);
    }
    EXPECT_GE(n, 28);
    EXPECT_EQ(Bytes(), bytes[1]);
}

}  // namespace
}  // namespace tarvelin
