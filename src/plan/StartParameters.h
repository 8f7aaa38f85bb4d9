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

struct Startparameter {
    std::string TempMin = "-29";
    std::string TempMax = "11";
    std::string UniStartZeitTag;
    std::string UniStartZeitMonat;
    std::string UniStartZeitJahr;
    std::string UniStartZeitStunden = "12";
    std::string UniStartZeitMinuten = "30";
    /// Seconds that the player gives himself for each click, 0 to `kMaxKlickPuffer`.
    int KlickPuffer = 5;
    bool SpeedfaktorX2 = false;

    /// "18.11.2006 12:30:00", whatever the inputs hold.
    [[nodiscard]] std::string Datumstext() const;

    [[nodiscard]] Long Speedfaktor() const { return SpeedfaktorX2 ? 2 : 1; }

    friend bool operator==(const Startparameter&, const Startparameter&) = default;
};

/// Day and month in two digits, and the year; the time of day stays.
void SetzeStartdatum(Startparameter& parameter, DateTime tag);

/// What the label of the weekday shows.
struct Wochentagsanzeige {
    std::string Caption;
    std::string Hint;
};

/// "Mo." with the hint "Montag".
[[nodiscard]] Wochentagsanzeige WochentagVon(DateTime tag);

/// "Mo." with the hint "Montag", or "Err." without one when the inputs are no date.
[[nodiscard]] Wochentagsanzeige RefreshWeekday(const Startparameter& parameter);

/// The start date; nothing if the inputs are none.
[[nodiscard]] std::optional<DateTime> ReadUniStartZeit(const Startparameter& parameter);

/// Pads day and month to two digits, as a run leaves them; one without a temperature doesn't come
/// as far as the date.
void FuelleStartdatumAuf(Startparameter& parameter);

/// The temperature of a run: the highest one, a whole number half to even. Nothing if its text is
/// no number, or one beyond the range of an Integer.
[[nodiscard]] std::optional<Integer> LiesTemperatur(const Startparameter& parameter);

/// The two temperatures are one value with a span of 40 between them: after a change of one the
/// other follows, and both stand in their plainest form, with at most ten decimals. A text that is
/// no number changes nothing on the other side.
void AendereTempMax(Startparameter& parameter, std::string_view text);
void AendereTempMin(Startparameter& parameter, std::string_view text);

/// "00:05".
[[nodiscard]] std::string KlickPufferText(int sekunden);

}  // namespace tarvelin
