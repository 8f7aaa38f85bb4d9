// Round steps for the scales of a plot.
#pragma once

#include <cmath>
#include <cstdint>

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

}  // namespace tarvelin
