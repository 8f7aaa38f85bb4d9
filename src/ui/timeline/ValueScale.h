// The scales of the fields: which values lie where, and which are named.
#pragma once

#include <vector>

namespace tarvelin {

struct ValueScale {
    double from = 0;
    double to = 1;

    /// From 0, or the lowest below it, to 4 % more than the highest in sight; never empty.
    [[nodiscard]] static ValueScale FromZero(double lowest, double highest);
    /// Fits the range in sight, where all of it is above 60 % of the highest; else as from zero.
    [[nodiscard]] static ValueScale Fitting(double lowest, double highest);

    [[nodiscard]] bool BeginsAtZero() const { return from <= 0; }
    /// Pixels below the top of a field of this height.
    [[nodiscard]] double Down(double value, double height) const {
        return height * (to - value) / (to - from);
    }
    /// At most two values at lines, growing: neighbouring multiples of the smallest of 1, 2, 2.5 or
    /// 5 times a power of ten that leaves `line` pixels, the height of a text, between them. None
    /// is 0, or so low that its text would reach into the field below.
    [[nodiscard]] std::vector<double> Figures(double height, double line) const;
};

}  // namespace tarvelin
