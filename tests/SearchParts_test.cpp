// Tests the parts of the search page that show what was found.
#include <gtest/gtest.h>

#include "ui/workbench/PlotTicks.h"

namespace tarvelin {
namespace {

TEST(PlotTicks, AreFewRoundAndInTheRange) {
    constexpr std::int64_t kDay = 86'400;
    for (std::int64_t range = 1; range < std::int64_t{1} << 31; range = range * 5 / 3 + 1) {
        for (int count = 1; count <= 5; ++count) {
            const std::int64_t round = RoundStep(range, count);
            const std::string digits = std::to_string(round);
            EXPECT_NE(std::string("125").find(digits.front()), std::string::npos) << digits;
            EXPECT_EQ(digits.find_first_not_of('0', 1), std::string::npos) << digits;
            const std::int64_t time = RoundTimeStep(range, count);
            EXPECT_EQ(time < kDay ? kDay % time : time % kDay, 0) << time;
            EXPECT_EQ(time % 60, 0) << time;
            for (const std::int64_t step : {round, time}) {
                const auto ticks = Ticks(range, 2 * range, step);
                EXPECT_LE(ticks.size(), static_cast<std::size_t>(count) + 1);
                for (const std::int64_t tick : ticks) {
                    EXPECT_TRUE(tick % step == 0 && tick >= range && tick <= 2 * range) << tick;
                }
            }
        }
    }
}

}  // namespace
}  // namespace tarvelin
