// The sleep windows that go with a plan, as texts, and what the panel for them checks.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "model/cSchlafzeit.h"
#include "util/DateTime.h"
#include "util/Message.h"

namespace tarvelin {

/// A row of `LV_Schlafzeiten`: "dd.mm.yyyy hh:mm" in both columns where the user entered it. A
/// loaded row can hold any texts.
struct SleepRow {
    std::string Startzeit;
    std::string Endzeit;

    friend bool operator==(const SleepRow&, const SleepRow&) = default;
};

/// `LV_Schlafzeiten`, in the order of adding.
using SleepTable = std::vector<SleepRow>;

/// What the panel's inputs hold: the date of the calendar, "dd.mm.yyyy", and four texts.
struct SleepInput {
    std::string date;
    std::string startHours = "22";
    std::string startMinutes = "30";
    std::string durationHours = "01";
    std::string durationMinutes = "00";
};

/// Adds the window that the inputs name at the end of the table. A message if the duration is no
/// number, if the start is no date, or if the window meets one of the table; nothing is added then.
/// Rows that are no dates meet nothing.
[[nodiscard]] std::optional<Message> AddSleepRow(const SleepInput& input, SleepTable& table);

/// The end that `AddSleepRow` would enter, as "Sa.  18.11.2006 23:30"; "Error" for inputs that
/// name none.
[[nodiscard]] std::string SleepEndText(const SleepInput& input);

/// The windows of a run. Rows that are no dates take no part.
[[nodiscard]] std::vector<cSchlafzeit> ParseSleepTable(const SleepTable& table);

}  // namespace tarvelin
