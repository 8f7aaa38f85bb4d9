// The sleep windows of a plan as texts, and the checks of the panel that enters them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "model/cSchlafzeit.h"
#include "util/DateTime.h"
#include "util/Message.h"

namespace tarvelin {

/// A row of `LV_Schlafzeiten`: "dd.mm.yyyy hh:mm" in both columns if the user entered it, any
/// texts if it was loaded.
struct SleepRow {
    std::string Startzeit;
    std::string Endzeit;

    friend bool operator==(const SleepRow&, const SleepRow&) = default;
};

/// `LV_Schlafzeiten`, the last added at the end.
using SleepTable = std::vector<SleepRow>;

/// What the panel's inputs hold: the date of the calendar, "dd.mm.yyyy", and four texts.
struct SleepInput {
    std::string date;
    std::string startHours = "22";
    std::string startMinutes = "30";
    std::string durationHours = "01";
    std::string durationMinutes = "00";
};

/// Adds the window that the inputs name. A message, and no change, if the duration isn't a number,
/// the start isn't a date, or the window overlaps one of the table; rows that aren't dates overlap
/// nothing.
[[nodiscard]] std::optional<Message> AddSleepRow(const SleepInput& input, SleepTable& table);

/// The end that `AddSleepRow` would enter, as "Sa.  18.11.2006 23:30"; "Error" for invalid inputs.
[[nodiscard]] std::string SleepEndText(const SleepInput& input);

/// The row of a window, to the minute below: "dd.mm.yyyy hh:mm".
[[nodiscard]] SleepRow SleepRowOf(DateTime start, DateTime end);

/// The window of a row; nothing if one of its texts isn't a date. It may end before it begins.
[[nodiscard]] std::optional<cSchlafzeit> ParseSleepRow(const SleepRow& row);

/// The windows of a run, without rows that aren't dates.
[[nodiscard]] std::vector<cSchlafzeit> ParseSleepTable(const SleepTable& table);

}  // namespace tarvelin
