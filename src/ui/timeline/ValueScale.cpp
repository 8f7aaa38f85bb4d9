// Ranges and round values.
#include "ui/timeline/ValueScale.h"

#include <algorithm>
#include <cmath>

namespace tarvelin {

namespace {

constexpr double kBeyond = 0.04;
/// In pixels.
constexpr double kBetweenFields = 4;

/// The multiples of a step from `lowest` to `highest`, without 0; one more than `most` at the most.
std::vector<double> Multiples(double lowest, double highest, double step, std::size_t most) {
    std::vector<double> values;
    for (double count = std::ceil(lowest / step); count * step <= highest; ++count) {
        if (count != 0) {
            values.push_back(count * step);
        }
        if (values.size() > most) {
            break;
        }
    }
    return values;
}

}  // namespace

ValueScale ValueScale::FromZero(double lowest, double highest) {
    const double from = std::min(0.0, lowest * (1 + kBeyond));
    return {.from = from, .to = std::max(from + 1, std::max(0.0, highest) * (1 + kBeyond))};
}

ValueScale ValueScale::Fitting(double lowest, double highest) {
    constexpr double kShare = 0.6;
    if (lowest <= kShare * highest) {
        return FromZero(lowest, highest);
    }
    const double beyond = std::max(1.0, kBeyond * (highest > lowest ? highest - lowest : highest));
    return {.from = lowest - beyond, .to = highest + beyond};
}

std::vector<double> ValueScale::Figures(double height, double line) const {
    constexpr std::size_t kMost = 2;
    constexpr double kTen = 10;
    const double lowest = from + (to - from) * (line - kBetweenFields) / height;
    // From a tenth of the range on a step has few multiples; no figure has decimals.
    const int magnitude = static_cast<int>(std::floor(std::log10(to - from)));
    for (int exponent = std::max(0, magnitude - 1); exponent <= magnitude + 1; ++exponent) {
        const double power = std::pow(kTen, exponent);
        for (const double factor : {1.0, 2.0, 2.5, 5.0}) {
            const double step = factor * power;
            if (step != std::floor(step)) {
                continue;
            }
            auto values = Multiples(lowest, to, step, kMost);
            const bool isApart = values.size() < 2 || height * step / (to - from) >= line;
            if (!values.empty() && values.size() <= kMost && isApart) {
                return values;
            }
        }
    }
    return {};
}

}  // namespace tarvelin
