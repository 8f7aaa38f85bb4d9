// How the seconds of a run lie across a plot.
#pragma once

#include "model/SimTime.h"

namespace tarvelin {

struct TimeScale {
    /// The plot's edges, in pixels.
    double left = 0;
    double right = 0;
    /// The second of the run at the left edge.
    double first = 0;
    /// Pixels.
    double perSecond = 1;

    [[nodiscard]] double X(double second) const { return left + (second - first) * perSecond; }
    [[nodiscard]] double X(SimTime moment) const {
        return X(static_cast<double>(moment.Seconds()));
    }
    [[nodiscard]] double SecondAt(double x) const { return first + (x - left) / perSecond; }
    /// The second at the right edge.
    [[nodiscard]] double Last() const { return SecondAt(right); }
    [[nodiscard]] double PerHour() const {
        constexpr double kHour = 3600;
        return perSecond * kHour;
    }
    /// Whether any of what lies between two places is in the plot.
    [[nodiscard]] bool Shows(double from, double until) const {
        return until >= left && from <= right;
    }
};

}  // namespace tarvelin
