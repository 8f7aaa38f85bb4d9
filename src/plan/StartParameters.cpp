// Parsing the start parameters, and the link between the temperatures.
#include "plan/StartParameters.h"

#include <limits>

#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr double kTemperatureSpan = 40;

/// Writes `from` plus `distance` to `target`. False, and no change, if `from` isn't a number.
bool SetShifted(const std::string& from, double distance, std::string& target) {
    constexpr int kDecimals = 10;
    const auto number = ParseNumber(from);
    if (number) {
        target = DecimalText(*number + distance, kDecimals);
    }
    return number.has_value();
}

}  // namespace

std::string StartParameters::StartDateText() const {
    return UniStartZeitTag + "." + UniStartZeitMonat + "." + UniStartZeitJahr + " " +
           UniStartZeitStunden + ":" + UniStartZeitMinuten + ":00";
}

void SetStartDate(StartParameters& parameters, DateTime day) {
    // "18.11.2006"
    const std::string date = DateText(day);
    parameters.UniStartZeitTag = date.substr(0, 2);
    parameters.UniStartZeitMonat = date.substr(3, 2);
    parameters.UniStartZeitJahr = date.substr(6);
}

WeekdayLabel WeekdayOf(DateTime day) {
    return {.caption = std::string(WeekdayShort(day)) + ".", .hint = std::string(WeekdayLong(day))};
}

WeekdayLabel RefreshWeekday(const StartParameters& parameters) {
    const auto date = ReadUniStartZeit(parameters);
    return date ? WeekdayOf(*date) : WeekdayLabel{.caption = "Err.", .hint = ""};
}

std::optional<DateTime> ReadUniStartZeit(const StartParameters& parameters) {
    return ParseDateTime(parameters.StartDateText());
}

void PadStartDate(StartParameters& parameters) {
    if (ParseTemperature(parameters)) {
        parameters.UniStartZeitTag = PadIntegerDigits(parameters.UniStartZeitTag, 2);
        parameters.UniStartZeitMonat = PadIntegerDigits(parameters.UniStartZeitMonat, 2);
    }
}

std::optional<Integer> ParseTemperature(const StartParameters& parameters) {
    const auto number = ParseNumber(parameters.TempMax);
    if (!number) {
        return std::nullopt;
    }
    const auto degrees = Rounding::HalfEven(*number);
    if (degrees < std::numeric_limits<Integer>::min() ||
        degrees > std::numeric_limits<Integer>::max()) {
        return std::nullopt;
    }
    return static_cast<Integer>(degrees);
}

void ChangeTempMax(StartParameters& parameters, std::string_view text) {
    parameters.TempMax = text;
    if (SetShifted(parameters.TempMax, -kTemperatureSpan, parameters.tempMin)) {
        SetShifted(parameters.tempMin, kTemperatureSpan, parameters.TempMax);
    }
}

void ChangeTempMin(StartParameters& parameters, std::string_view text) {
    parameters.tempMin = text;
    if (SetShifted(parameters.tempMin, kTemperatureSpan, parameters.TempMax)) {
        SetShifted(parameters.TempMax, -kTemperatureSpan, parameters.tempMin);
    }
}

std::string KlickPufferText(int seconds) {
    return FormatDuration(seconds, "s", "mm:ss", "d");
}

}  // namespace tarvelin
