// The labels of the rows above the lanes: days, hours, nights, and the chips of the lines over all.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "model/cSchlafzeit.h"
#include "ui/timeline/PlacedText.h"
#include "ui/timeline/TimeScale.h"
#include "util/DateTime.h"

namespace tarvelin {

/// Seconds between two hour lines: the first of 1, 5, 10, 15, 30 minutes, 1, 2, 3, 6, 12, 24 hours
/// that gives a label room; nothing if a day gives none.
[[nodiscard]] std::optional<std::int64_t> HourStep(double perSecond, double labelWidth);

/// Days between two midnights that are marked, so that their dates have room: 1, 2, 7, 14, 28 and
/// so on, doubled. From 2 days on a date needs its year.
[[nodiscard]] std::int64_t DayStep(double perSecond, const TextWidth& widthOf);

/// The multiples of `step` in sight, in seconds since `begin`.
[[nodiscard]] std::vector<std::int64_t> GridSeconds(DateTime begin, const TimeScale& scale,
                                                    std::int64_t step);

/// "Mittwoch, 02.12.2026" at the beginning of each day in sight, shorter where there is less room.
[[nodiscard]] std::vector<PlacedText> DayLabels(DateTime begin, const TimeScale& scale,
                                                const TextWidth& widthOf);

/// "18:00" at each hour line; left out where one would touch another or a chip.
[[nodiscard]] std::vector<PlacedText> HourLabels(DateTime begin, const TimeScale& scale,
                                                 std::span<const PlacedText> chips,
                                                 const TextWidth& widthOf);

/// A night, or several that overlap, cut to the plot.
struct NightBand {
    double from = 0;
    double until = 0;
    /// "23:00–07:00", "23–07", or nothing where there is no room. Its place is the band's.
    QString label{};
};

/// By their beginnings.
[[nodiscard]] std::vector<NightBand> NightBands(std::span<const cSchlafzeit> nights, DateTime begin,
                                                const TimeScale& scale, const TextWidth& widthOf);

/// A line over all rows that bears a word in the row of the hours.
struct ChipLine {
    /// In pixels.
    double x = 0;
    QString text;
};

/// Where the chips lie, frame included: over their line, else at one of its sides. The first have
/// the first choice; nothing for one that has no room or whose line isn't in the plot.
[[nodiscard]] std::vector<std::optional<PlacedText>> PlaceChips(std::span<const ChipLine> lines,
                                                                const TimeScale& scale,
                                                                const TextWidth& widthOf);

}  // namespace tarvelin
