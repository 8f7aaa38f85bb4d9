// Signals, on the platforms that have them.
#include "ui/services/TerminationSignals.h"

#include <gtest/gtest.h>

#include <QTest>
#include <csignal>

namespace tarvelin {
namespace {

TEST(Endesignale, KommenAmFensterAn) {
    int gekommen = 0;
    {
        const TerminationSignals signale([&] { ++gekommen; });
        for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
            const int bisher = gekommen;
            std::raise(signal);
            EXPECT_EQ(gekommen, bisher) << "not within the handler";
            EXPECT_TRUE(QTest::qWaitFor([&] { return gekommen == bisher + 1; })) << signal;
        }
    }
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        std::signal(signal, SIG_DFL);
    }
}

}  // namespace
}  // namespace tarvelin
