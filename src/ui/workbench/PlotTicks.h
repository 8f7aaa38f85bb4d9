// Round places for the scales of a plot.
#pragma once

#include <cstdint>
#include <vector>

namespace tarvelin {

/// The smallest of 1, 2, 5, 10, 20 ... that is at least a `count`th of `range`; both at least 1.
[[nodiscard]] inline std::int64_t RoundStep(std::int64_t range, int count) {
    std::int64_t power = 1;
    while (true) {
        for (const int factor : {1, 2, 5}) {
            if (factor * power * count >= range) {
                return factor * power;
            }
        }
        constexpr int kTen = 10;
        power *= kTen;
    }
}

/// The same for seconds: whole minutes, hours and days as clocks count them.
[[nodiscard]] inline std::int64_t RoundTimeStep(std::int64_t range, int count) {
    constexpr std::int64_t kMinute = 60;
    constexpr std::int64_t kHour = 60 * kMinute;
    constexpr std::int64_t kDay = 24 * kHour;
    for (const std::int64_t step : {kMinute, 5 * kMinute, 10 * kMinute, 30 * kMinute, kHour,
                                    2 * kHour, 3 * kHour, 6 * kHour, 12 * kHour}) {
        if (step * count >= range) {
            return step;
        }
    }
    return kDay * RoundStep((range + kDay - 1) / kDay, count);
}

/// The multiples of `step` from `first` to `last`, both included; `first` is at least 0.
[[nodiscard]] inline std::vector<std::int64_t> Ticks(std::int64_t first, std::int64_t last,
                                                     std::int64_t step) {
    std::vector<std::int64_t> ticks;
    for (std::int64_t tick = (first + step - 1) / step * step; tick <= last; tick += step) {
        ticks.push_back(tick);
    }
    return ticks;
}

}  // namespace tarvelin
