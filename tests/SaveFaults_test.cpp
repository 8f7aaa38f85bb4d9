// Tests saves while system calls fail or their process ends.
#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

#include "FaultyFileSystem.h"
#include "TestSupport.h"
#include "persistence/AtomicWrite.h"
#include "persistence/Configuration.h"

namespace tarvelin {
namespace {

constexpr std::string_view kBefore = "; von Hand\r\n[Einstellungen]\nTempMax=7\n[Eigenes]\nx=1";

TEST(AtomicWrite, RemovesWhatKilledProcessesLeft) {
    const FileSystem& system = NativeFileSystem();
    const TempFolder folder;
    // No process has the first id. On Linux process 1 always runs, on Windows it never does.
    for (const char* const name : {".tarvelin-4194999.tmp", ".tarvelin-1.tmp", ".tarvelin-x.tmp"}) {
        WriteFile(folder / name, "halb");
    }
    ASSERT_TRUE(Configuration(folder / "").Write({{Configuration::kFirststart, "0"}}));
    EXPECT_FALSE(std::filesystem::exists(folder / ".tarvelin-4194999.tmp"));
    EXPECT_EQ(folder.Entries(), kWindows ? 2U : 3U);
    // In this sequence, as the first call leaves an error number behind.
    EXPECT_FALSE(system.IsRunning(4194999));
    EXPECT_TRUE(system.IsRunning(system.ProcessId()));
}

/// Whether a process of its own ends in the middle of the action.
template <class Action>
bool Dies([[maybe_unused]] Action action) {
#ifdef _WIN32
    return false;
#else
    const pid_t child = ::fork();
    if (child == 0) {
        action();
        std::_Exit(0);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WEXITSTATUS(status) == FaultyFileSystem::kDead;
#endif
}

/// Saves over files that were edited by hand.
class SaveFaults : public testing::TestWithParam<int> {
  protected:
    SaveFaults() {
        WritePlan(m_plan, m_newPlan);
        for (const auto& [key, value] : m_values) {
            m_newConfig.WriteINI(key.Section, key.Key, value);
        }
    }

    /// Whether the plan was saved.
    [[nodiscard]] bool Save(const FileSystem& system) const {
        const bool saved = SaveBauliste(m_folder / "plan.tvf", m_plan, system);
        Configuration(m_folder / "", system).Write(m_values);
        return saved;
    }

    const TempFolder m_folder;
    const Plan m_plan = PlanOf("GM GS GX:8:10:5 GK");
    const Configuration::Values m_values{{Configuration::kMode, "3"},
                                         {Configuration::kFirststart, "0"}};
    IniFile m_newPlan{kBefore};
    IniFile m_newConfig{kBefore};
};

/// The n-th call fails, for n from 1 until there are fewer calls.
TEST_P(SaveFaults, LeaveTheOldOrTheNewFiles) {
    const auto kind = static_cast<FaultKind>(GetParam());
    std::string calls;
    bool failed = true;
    for (int n = 1; failed; ++n) {
        SCOPED_TRACE("call " + std::to_string(n));
        WriteFile(m_folder / "plan.tvf", kBefore);
        WriteFile(m_folder / "config.cfg", kBefore);
        const FaultyFileSystem system(n, kind);
        const bool died = kind == FaultKind::EndOfProcess && Dies([&] { return Save(system); });
        const bool saved = !died && Save(system);
        calls += std::string(system.Faulty()) + " ";
        failed = died || system.HasFailed();
        const std::string bytes = ReadFileToString(m_folder / "plan.tvf");
        EXPECT_EQ(bytes, (died ? bytes != kBefore : saved) ? m_newPlan.Bytes() : kBefore);
        const std::string config = ReadFileToString(m_folder / "config.cfg");
        EXPECT_TRUE(config == m_newConfig.Bytes() || (failed && config == kBefore)) << config;
        EXPECT_TRUE(failed || (saved && n > 28)) << n;
        // A temporary file may remain if it could not be removed either.
        EXPECT_LE(m_folder.Entries(), kind < FaultKind::EverythingForever ? 2U : 3U);
        // The next save removes what a failed deletion left.
        EXPECT_TRUE(WriteFileAtomically(m_folder / "plan.tvf", kBefore));
        EXPECT_EQ(m_folder.Entries(), 2U);
    }
    // The bytes are on the disk before the file gets its name.
    EXPECT_TRUE(kind == FaultKind::EndOfProcess ||
                calls.ends_with(" Write Sync Close Rename SyncFolder  "))
        << calls;
}

// Windows can't copy a process to let it end.
INSTANTIATE_TEST_SUITE_P(Kinds, SaveFaults, testing::Range(0, kWindows ? 3 : 4));

}  // namespace
}  // namespace tarvelin
