// Positions and labels of the ticks on the time axis.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <string>

#include "util/DateTime.h"

namespace tarvelin {

/// Ticks are at round times of the wall clock, as close as their labels allow.
class TimeAxis {
  public:
    /// The width of a second and of a label, in the same unit.
    TimeAxis(double perSecond, double width) {
        for (const std::int64_t step : kSteps) {
            m_step = step;
            if (static_cast<double>(step) * perSecond >= width) {
                return;
            }
        }
        while (static_cast<double>(m_step) * perSecond < width && m_step < kLongestStep) {
            m_step *= 2;
        }
    }

    /// Calls `tick` with second and label of each tick from `from` to `until`, and perhaps one
    /// before. Seconds count from `begin`.
    template <class Tick>
    void ForEachTick(DateTime begin, double from, double until, Tick tick) const {
        const auto first = begin + static_cast<std::int64_t>(std::floor(from));
        const auto last = begin + static_cast<std::int64_t>(std::ceil(until));
        const std::int64_t number = first.Seconds() / m_step;
        for (std::int64_t at = number * m_step; at <= last.Seconds(); at += m_step) {
            tick(at - begin.Seconds(), TickText(DateTime(at)));
        }
    }

  private:
    static constexpr std::int64_t kMinute = 60;
    static constexpr std::int64_t kHour = 60 * kMinute;
    static constexpr std::int64_t kDay = 24 * kHour;
    static constexpr std::int64_t kLongestStep = 1'000'000 * kDay;
    static constexpr std::array<std::int64_t, 17> kSteps{
        1,          5,           15,           30,
        kMinute,    5 * kMinute, 15 * kMinute, 30 * kMinute,
        kHour,      2 * kHour,   3 * kHour,    6 * kHour,
        12 * kHour, kDay,        2 * kDay,     7 * kDay,
        14 * kDay};

    [[nodiscard]] std::string TickText(DateTime at) const {
        const std::string date = DateText(at);
        std::string day = std::string(WeekdayShort(at)) + " " +
                          (m_step > kDay ? date : date.substr(0, date.rfind('.') + 1));
        if (m_step >= kDay) {
            return day;
        }
        const std::string timeOfDay = TimeOfDayText(at);
        const bool withSeconds = m_step < kMinute;
        return day + " " + (withSeconds ? timeOfDay : timeOfDay.substr(0, timeOfDay.rfind(':')));
    }

    std::int64_t m_step = 1;
};

}  // namespace tarvelin
