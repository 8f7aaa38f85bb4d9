// Checks and links of the start parameters.
#include "plan/StartParameters.h"

#include <limits>

#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr double kTemperaturspanne = 40;

/// Writes a number text moved by `abstand` into the other input of the link. Whether it did.
bool SetzeVerschoben(const std::string& von, double abstand, std::string& nach) {
    constexpr int kStellen = 10;
    const auto zahl = ParseNumber(von);
    if (zahl) {
        nach = DecimalText(*zahl + abstand, kStellen);
    }
    return zahl.has_value();
}

}  // namespace

std::string Startparameter::Datumstext() const {
    return UniStartZeitTag + "." + UniStartZeitMonat + "." + UniStartZeitJahr + " " +
           UniStartZeitStunden + ":" + UniStartZeitMinuten + ":00";
}

void SetzeStartdatum(Startparameter& parameter, DateTime tag) {
    // "18.11.2006"
    const std::string datum = DateText(tag);
    parameter.UniStartZeitTag = datum.substr(0, 2);
    parameter.UniStartZeitMonat = datum.substr(3, 2);
    parameter.UniStartZeitJahr = datum.substr(6);
}

Wochentagsanzeige WochentagVon(DateTime tag) {
    return {.Caption = std::string(WeekdayShort(tag)) + ".", .Hint = std::string(WeekdayLong(tag))};
}

Wochentagsanzeige RefreshWeekday(const Startparameter& parameter) {
    const auto datum = ReadUniStartZeit(parameter);
    return datum ? WochentagVon(*datum) : Wochentagsanzeige{.Caption = "Err.", .Hint = ""};
}

std::optional<DateTime> ReadUniStartZeit(const Startparameter& parameter) {
    return ParseDateTime(parameter.Datumstext());
}

void FuelleStartdatumAuf(Startparameter& parameter) {
    if (LiesTemperatur(parameter)) {
        parameter.UniStartZeitTag = PadIntegerDigits(parameter.UniStartZeitTag, 2);
        parameter.UniStartZeitMonat = PadIntegerDigits(parameter.UniStartZeitMonat, 2);
    }
}

std::optional<Integer> LiesTemperatur(const Startparameter& parameter) {
    const auto zahl = ParseNumber(parameter.TempMax);
    if (!zahl) {
        return std::nullopt;
    }
    const auto grad = Rounding::HalfEven(*zahl);
    if (grad < std::numeric_limits<Integer>::min() || grad > std::numeric_limits<Integer>::max()) {
        return std::nullopt;
    }
    return static_cast<Integer>(grad);
}

void AendereTempMax(Startparameter& parameter, std::string_view text) {
    parameter.TempMax = text;
    if (SetzeVerschoben(parameter.TempMax, -kTemperaturspanne, parameter.TempMin)) {
        SetzeVerschoben(parameter.TempMin, kTemperaturspanne, parameter.TempMax);
    }
}

void AendereTempMin(Startparameter& parameter, std::string_view text) {
    parameter.TempMin = text;
    if (SetzeVerschoben(parameter.TempMin, kTemperaturspanne, parameter.TempMax)) {
        SetzeVerschoben(parameter.TempMax, -kTemperaturspanne, parameter.TempMin);
    }
}

std::string KlickPufferText(int sekunden) {
    return FormatDuration(sekunden, "s", "mm:ss", "d");
}

}  // namespace tarvelin
