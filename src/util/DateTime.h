// Wall-clock moments, their test and their German texts, whatever the system's settings.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "util/Integers.h"

namespace tarvelin {

/// A wall-clock moment in whole seconds since 30 December 1899, 00:00, in the Gregorian calendar.
class Zeitpunkt {
  public:
    constexpr Zeitpunkt() = default;
    constexpr explicit Zeitpunkt(std::int64_t sekunden) : m_sekunden(sekunden) {}

    friend constexpr Zeitpunkt operator+(Zeitpunkt zeitpunkt, std::int64_t sekunden) {
        return Zeitpunkt(zeitpunkt.m_sekunden + sekunden);
    }
    /// Seconds from `b` to `a`, held within the range of Long.
    friend constexpr Long operator-(Zeitpunkt a, Zeitpunkt b) {
        return Saettige<Long>(a.m_sekunden - b.m_sekunden);
    }
    friend constexpr auto operator<=>(Zeitpunkt, Zeitpunkt) = default;

    [[nodiscard]] constexpr std::int64_t Sekunden() const { return m_sekunden; }

  private:
    std::int64_t m_sekunden = 0;
};

/// The moment that a text names, day first: D or DD "." M or MM "." YY or YYYY, one blank, h or hh
/// ":" m or mm and optionally ":" s or ss, with nothing around it. Two-digit years 00 to 29 are
/// 20xx, 30 to 99 are 19xx; four-digit years run from 0100 to 9999. Nothing for any other text and
/// for a day or time that doesn't exist.
[[nodiscard]] std::optional<Zeitpunkt> LiesDatumzeit(std::string_view text);

/// Weekday from 1, Sunday, to 7, Saturday.
[[nodiscard]] int Wochentag(Zeitpunkt zeitpunkt);
/// "So", "Mo" ... "Sa".
[[nodiscard]] std::string_view WochentagKurz(Zeitpunkt zeitpunkt);
/// "Sonntag", "Montag" ... "Samstag".
[[nodiscard]] std::string_view WochentagLang(Zeitpunkt zeitpunkt);

/// "18.11.2006"; a year behind 9999 has five digits.
[[nodiscard]] std::string Datumtext(Zeitpunkt zeitpunkt);
/// "12:30:00".
[[nodiscard]] std::string Uhrzeittext(Zeitpunkt zeitpunkt);
/// "18.11.2006 12:30:00".
[[nodiscard]] std::string Datumzeittext(Zeitpunkt zeitpunkt);

}  // namespace tarvelin
