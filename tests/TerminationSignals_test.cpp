// Tests that termination signals reach the event loop.
#include "ui/services/TerminationSignals.h"

#include <gtest/gtest.h>

#include <QTest>
#include <csignal>

namespace tarvelin {
namespace {

TEST(TerminationSignals, ReachTheWindow) {
    int arrived = 0;
    {
        const TerminationSignals signalHandlers([&] { ++arrived; });
        for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
            const int previous = arrived;
            std::raise(signal);
            EXPECT_EQ(arrived, previous) << "not within the handler";
            EXPECT_TRUE(QTest::qWaitFor([&] { return arrived == previous + 1; })) << signal;
        }
    }
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        std::signal(signal, SIG_DFL);
    }
}

}  // namespace
}  // namespace tarvelin
