// Tests saves while system calls fail: one of them, all later ones of its kind, or all later ones.

#include "FaultyFileSystem.h"
#include "TestSupport.h"
#include "persistence/AtomicWrite.h"
#include "persistence/Configuration.h"

namespace tarvelin {
namespace {

constexpr std::string_view kBefore = "; von Hand\r\n[Einstellungen]\nTempMax=7\n[Eigenes]\nx=1";

/// Saves over files that were edited by hand.
class SaveFaults : public testing::TestWithParam<FaultKind> {
  protected:
    /// Whether a temporary file may remain, because it could not be removed either.
    static constexpr bool MayRemain(FaultKind kind) { return kind == FaultKind::EverythingForever; }

    /// Runs `action` with its n-th call failing, for n from 1 until it has fewer calls, and `check`
    /// after each. The number of faults.
    template <class Action, class Check>
    int Try(Action action, Check check) {
        int n = 1;
        for (bool failed = true; failed; ++n) {
            SCOPED_TRACE("call " + std::to_string(n));
            WriteFile(m_folder / "plan.tvf", kBefore);
            WriteFile(m_folder / "config.cfg", kBefore);
            const FaultyFileSystem system(n, GetParam());
            action(system);
            m_calls += std::string(system.Faulty()) + " ";
            failed = system.HasFailed();
            check();
            if (!MayRemain(GetParam())) {
                EXPECT_EQ(m_folder.Entries(), 2U);
            }
            // The next save removes what a failed deletion left.
            EXPECT_TRUE(WriteFileAtomically(m_folder / "plan.tvf", kBefore));
            EXPECT_EQ(m_folder.Entries(), 2U);
        }
        return n - 2;
    }

    const TempFolder m_folder;
    /// The failed calls in their order.
    std::string m_calls;
    const Plan m_plan = PlanOf("GM GS GX:8:10:5 GK");
};

TEST_P(SaveFaults, PlanIsTheOldOrTheNewOne) {
    IniFile expected(kBefore);
    WritePlan(m_plan, expected);
    bool saved = false;
    const int faults = Try(
        [&](const FileSystem& system) {
            saved = SaveBauliste(m_folder / "plan.tvf", m_plan, system);
        },
        [&] {
            EXPECT_EQ(ReadFileToString(m_folder / "plan.tvf"),
                      saved ? expected.Bytes() : std::string(kBefore));
        });
    EXPECT_TRUE(saved);
    EXPECT_GE(faults, 14);
    // The bytes are on the disk before the file gets its name.
    EXPECT_TRUE(m_calls.ends_with(" Write Sync Close Rename SyncFolder  ")) << m_calls;
}

TEST_P(SaveFaults, ConfigurationHasAllNewValuesOrNone) {
    const Configuration::Values values{{Configuration::kMode, "3"},
                                       {Configuration::kFirststart, "0"}};
    IniFile fresh(kBefore);
    for (const auto& [key, value] : values) {
        fresh.WriteINI(key.Section, key.Key, value);
    }
    Try([&](const FileSystem& system) { Configuration(m_folder / "", system).Write(values); },
        [&] {
            const std::string config = ReadFileToString(m_folder / "config.cfg");
            EXPECT_TRUE(config == kBefore || config == fresh.Bytes()) << config;
        });
}

INSTANTIATE_TEST_SUITE_P(Kinds, SaveFaults,
                         testing::Values(FaultKind::Once, FaultKind::ThisCallForever,
                                         FaultKind::EverythingForever));

}  // namespace
}  // namespace tarvelin
