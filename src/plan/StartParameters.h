// The parameters of a plan besides its rows, as the inputs hold them: start date, temperatures,
// click buffer and speed.
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
    /// Seconds that the player allows for each click, 0 to `kMaxKlickPuffer`.
    int KlickPuffer = 5;
    bool Speedfaktor_X2 = false;

    /// "18.11.2006 12:30:00": the inputs put together, without a check.
    [[nodiscard]] std::string StartDateText() const;

    [[nodiscard]] Long Speedfaktor() const { return Speedfaktor_X2 ? 2 : 1; }

    friend bool operator==(const StartParameters&, const StartParameters&) = default;
};

/// Sets day and month, in two digits, and the year; the time of day stays.
void SetStartDate(StartParameters& parameters, DateTime day);

/// What the label of the weekday shows.
struct WeekdayLabel {
    std::string caption;
    std::string hint;
};

/// "Mo." with the hint "Montag".
[[nodiscard]] WeekdayLabel WeekdayOf(DateTime day);

/// The same for the start date; "Err." without a hint if the inputs aren't a date.
[[nodiscard]] WeekdayLabel RefreshWeekday(const StartParameters& parameters);

/// The start date; nothing if the inputs aren't a date.
[[nodiscard]] std::optional<DateTime> ReadUniStartZeit(const StartParameters& parameters);

/// Pads day and month to two digits, as a run does once it has a valid temperature.
void PadStartDate(StartParameters& parameters);

/// The temperature of a run: `TempMax`, rounded half to even. Nothing if it isn't a number or is
/// beyond the range of an Integer.
[[nodiscard]] std::optional<Integer> ParseTemperature(const StartParameters& parameters);

/// The two temperatures are always 40 degrees apart. A change of one moves the other and formats
/// both, with at most ten decimals; a text that isn't a number leaves the other alone.
void ChangeTempMax(StartParameters& parameters, std::string_view text);
void ChangeTempMin(StartParameters& parameters, std::string_view text);

/// "00:05".
[[nodiscard]] std::string KlickPufferText(int seconds);

}  // namespace tarvelin
