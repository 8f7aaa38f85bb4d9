// The parameters of a plan that are no rows: when and where the universe started, and how fast the
// player and the universe are. All of it as the inputs hold it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "util/DateTime.h"
#include "util/Integers.h"

namespace tarvelin {

/// Longest click buffer, in seconds.
inline constexpr int kMaxKlickPuffer = 600;

struct StartParameters {
    std::string tempMin = "-29";
    std::string TempMax = "11";
    std::string UniStartZeitTag;
    std::string UniStartZeitMonat;
    std::string UniStartZeitJahr;
    std::string UniStartZeitStunden = "12";
    std::string UniStartZeitMinuten = "30";
    /// Seconds that the player gives himself for each click, 0 to `kMaxKlickPuffer`.
    int KlickPuffer = 5;
    bool Speedfaktor_X2 = false;

    /// "18.11.2006 12:30:00", whatever the inputs hold.
    [[nodiscard]] std::string StartDateText() const;

    [[nodiscard]] Long Speedfaktor() const { return Speedfaktor_X2 ? 2 : 1; }

    friend bool operator==(const StartParameters&, const StartParameters&) = default;
};

/// Day and month in two digits, and the year; the time of day stays.
void SetStartDate(StartParameters& parameters, DateTime day);

/// What the label of the weekday shows.
struct WeekdayLabel {
    std::string caption;
    std::string hint;
};

/// "Mo." with the hint "Montag".
[[nodiscard]] WeekdayLabel WeekdayOf(DateTime day);

/// "Mo." with the hint "Montag", or "Err." without one when the inputs are no date.
[[nodiscard]] WeekdayLabel RefreshWeekday(const StartParameters& parameters);

/// The start date; nothing if the inputs are none.
[[nodiscard]] std::optional<DateTime> ReadUniStartZeit(const StartParameters& parameters);

/// Pads day and month to two digits, as a run leaves them; one without a temperature doesn't come
/// as far as the date.
void PadStartDate(StartParameters& parameters);

/// The temperature of a run: the highest one, a whole number half to even. Nothing if its text is
/// no number, or one beyond the range of an Integer.
[[nodiscard]] std::optional<Integer> ParseTemperature(const StartParameters& parameters);

/// The two temperatures are one value with a span of 40 between them: after a change of one the
/// other follows, and both stand in their plainest form, with at most ten decimals. A text that is
/// no number changes nothing on the other side.
void ChangeTempMax(StartParameters& parameters, std::string_view text);
void ChangeTempMin(StartParameters& parameters, std::string_view text);

/// "00:05".
[[nodiscard]] std::string KlickPufferText(int seconds);

}  // namespace tarvelin
