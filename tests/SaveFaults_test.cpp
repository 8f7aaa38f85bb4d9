// Saves under a platform that fails: each call once, each kind of call for good, all of them for
// good.

#include "FaultyFileSystem.h"
#include "TestSupport.h"
#include "persistence/AtomicWrite.h"
#include "persistence/Configuration.h"

namespace tarvelin {
namespace {

constexpr std::string_view kBefore = "; von Hand\r\n[Einstellungen]\nTempMax=7\n[Eigenes]\nx=1";

/// A save over a plan of somebody's own making.
class SaveFaults : public testing::TestWithParam<FaultKind> {
  protected:
    /// Whether only what the call itself left can lie there: no deletion worked any more.
    static constexpr bool MayRemain(FaultKind kind) { return kind == FaultKind::EverythingForever; }

    /// Lets the n-th call of `action` fail, for n from 1 until it has so many no more, and looks at
    /// the folder after each. How often something failed.
    template <class Action, class View>
    int Try(Action action, View view) {
        int n = 1;
        for (bool disturbed = true; disturbed; ++n) {
            SCOPED_TRACE("call " + std::to_string(n));
            WriteFile(m_folder / "plan.tvf", kBefore);
            WriteFile(m_folder / "config.cfg", kBefore);
            const FaultyFileSystem system(n, GetParam());
            action(system);
            m_calls += std::string(system.Faulty()) + " ";
            disturbed = system.HasFailed();
            view();
            if (!MayRemain(GetParam())) {
                EXPECT_EQ(m_folder.Entries(), 2U);
            }
            // What a failed deletion left goes with the next save.
            EXPECT_TRUE(WriteFileAtomically(m_folder / "plan.tvf", kBefore));
            EXPECT_EQ(m_folder.Entries(), 2U);
        }
        return n - 2;
    }

    const TempFolder m_folder;
    /// Calls in their order.
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
    // The bytes lie on the disk before they get the name.
    EXPECT_TRUE(
        m_calls.ends_with(" Schreibe BringAufPlatte Schliesse BenenneUm BringOrdnerAufPlatte  "))
        << m_calls;
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
