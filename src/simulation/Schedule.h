// The schedule: when each order has to be given, and why not earlier.
#pragma once

#include <string>
#include <vector>

#include "model/RunConditions.h"
#include "simulation/RunObserver.h"
#include "util/DateTime.h"

namespace tarvelin {

/// A row of `LV_Bauzeiten`, kept as figures; the texts of its cells are made when they are read.
struct ScheduleEntry {
    Order order{};
    /// The level or number that an item reaches; 0 for a production row.
    Byte number = 0;
    DateTime start{};
    /// What the stocks lacked when the start was last timed.
    Shortage shortage{};

    /// Short name of the weekday.
    [[nodiscard]] std::string Weekday() const { return std::string(WeekdayShort(start)); }
    /// "hh:mm:ss".
    [[nodiscard]] std::string TimeOfDay() const { return TimeOfDayText(start); }
    /// "Metallmine: 1", or "80% 100% 50%".
    [[nodiscard]] std::string theText() const;
    /// Full weekday, date and time, then " | " and the reason if there is one.
    [[nodiscard]] std::string Tag() const;
    /// The reason in words. Rows of the research lab and production rows have none.
    [[nodiscard]] std::string VerzoegerungsGrund() const;
};

/// `LV_Bauzeiten`, in the sequence of the starts.
using Schedule = std::vector<ScheduleEntry>;

/// Adds the row of a start to the schedule of a run that began at `StartDate`.
void AddBauzeit(DateTime StartDate, const StartEvent& start, Schedule& LV_Bauzeiten);

/// Adds a row at each start.
class ScheduleRecorder final : public RunObserver {
  public:
    /// Both must outlive it.
    ScheduleRecorder(const RunConditions& conditions, Schedule& schedule)
        : m_conditions(conditions), m_schedule(schedule) {}

    void OnStart(const StartEvent& event) override {
        AddBauzeit(m_conditions.StartDate, event, m_schedule);
    }

  private:
    const RunConditions& m_conditions;
    Schedule& m_schedule;
};

}  // namespace tarvelin
