// Sleep by rule: the nights of a plan from times of day, entered as ordinary rows.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "plan/SleepTable.h"

namespace tarvelin {

/// From when to when the player sleeps, in minutes since midnight, 0 to 1439. Up to a time of day
/// that isn't later than `from` it is the next day's; equal times are no night.
struct NightTimes {
    int from = 23 * 60;
    int to = 7 * 60;

    friend bool operator==(const NightTimes&, const NightTimes&) = default;
};

struct SleepRule {
    /// By the weekday of the evening, at `Weekday(time)` - 1, so Sunday first; nothing where the
    /// player stays awake. A night that begins before noon belongs to the evening before: from
    /// 01:00 in the place of Friday is the night from Friday to Saturday.
    std::array<std::optional<NightTimes>, 7> nights{};

    [[nodiscard]] static SleepRule EveryNight(const NightTimes& times);

    friend bool operator==(const SleepRule&, const SleepRule&) = default;
};

/// What becomes of a night and the rows that it overlaps. Windows that only touch don't overlap.
enum class AtOverlap : std::uint8_t {
    /// The rows stay, the night is left out.
    KeepRows,
    /// One row over all of them, in the place of the first.
    Merge,
    /// The rows go, the night comes.
    ReplaceRows,
};

/// A table with nights, not yet entered, and how it differs from the table before.
struct FilledSleepTable {
    /// Other rows keep place and text; nights of their own stand at the end, by time.
    SleepTable table;
    /// Where in `table` rows are new or merged.
    std::vector<std::size_t> changedRows;
    /// Nights that got a row of their own.
    std::size_t added = 0;
    /// Rows that were there and are longer now.
    std::size_t merged = 0;
    /// Rows that are gone: replaced, or part of a merged one.
    std::size_t removed = 0;
    /// Nights for which nothing had to change.
    std::size_t present = 0;

    [[nodiscard]] bool ChangesNothing() const { return added + merged + removed == 0; }
};

inline constexpr std::size_t kMaxNights = 400;

/// Adds the nights that begin between a plan's start and a day after its end, the first 400.
/// Filling again with the same arguments changes nothing. Rows that hold no moment, because they
/// aren't dates or end before they begin, stay and overlap nothing. Nights beyond the year 9999 are
/// left out.
[[nodiscard]] FilledSleepTable FillWithNights(const SleepTable& table, const SleepRule& rule,
                                              DateTime planStart, DateTime planEnd,
                                              AtOverlap atOverlap);

/// From when on a plan that has nights is played without sleep: a day after its last night began
/// or, if that is later, when it ended; not before the plan's start. Nothing if it ends earlier or
/// has no nights; rows of less than three hours are pauses, not nights.
[[nodiscard]] std::optional<DateTime> SleeplessFrom(const SleepTable& table, DateTime planStart,
                                                    DateTime planEnd);

/// The rule that the nights of a table follow: of each weekday the last one, where a weekday has
/// none the last of all. Nothing for a table without nights.
[[nodiscard]] std::optional<SleepRule> RuleOf(const SleepTable& table);

/// All rows that are dates, so many days later, or earlier for a negative number; those that would
/// leave the years 0100 to 9999 are left out.
[[nodiscard]] SleepTable MovedByDays(const SleepTable& table, int days);

}  // namespace tarvelin
