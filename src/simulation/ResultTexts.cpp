// Texts of the result labels.
#include "simulation/ResultTexts.h"

#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

std::string ToPoints(double resources) {
    constexpr double kResourcesPerPoint = 1000;
    constexpr int kDecimals = 3;
    return DecimalText(resources / kResourcesPerPoint, kDecimals);
}

}  // namespace

std::string DurationText(const GameState& state) {
    return DurationText(state.secsgone.Seconds());
}

std::string DurationText(Long seconds) {
    return FormatDuration(seconds, "s", "dd(0)hh:mm:ss", "d");
}

std::string PointsText(const GameState& state) {
    return ToPoints(state.VerbauteRessourcen);
}

std::string PointsWithStockText(const GameState& state) {
    return ToPoints((FixedPoint::FromWhole(state.VerbauteRessourcen) + state.Deuterium() +
                     state.Kristall() + state.Metall())
                        .ToDouble());
}

void ResultTexts::AfterReset() {
    const ResultTexts initial;
    LBL_Timegone2 = initial.LBL_Timegone2;
    LBL_Punkte = initial.LBL_Punkte;
}

void ResultTexts::AfterClear() {
    const ResultTexts initial;
    LBL_Timegone = initial.LBL_Timegone;
    LBL_Deut = initial.LBL_Deut;
    LBL_Kris = initial.LBL_Kris;
    LBL_Met = initial.LBL_Met;
    LBL_ENergie = initial.LBL_ENergie;
}

void ResultTexts::AfterRun(const GameState& state) {
    LBL_Timegone = "Dauer: " + DurationText(state);
    LBL_Timegone2 = LBL_Timegone;
    LBL_Met = std::to_string(state.Metall().WholePart());
    LBL_Kris = std::to_string(state.Kristall().WholePart());
    LBL_Deut = std::to_string(state.Deuterium().WholePart());
    LBL_ENergie =
        std::to_string(LongSum(state.EnergieProduktion, -std::int64_t{state.EnergieVerbrauch})) +
        " / " + std::to_string(state.EnergieProduktion);
    LBL_Punkte = PointsText(state) + " P";
    LBL_Punkte_Hint = "Inkl. Res.: " + PointsWithStockText(state) + " Punkte";
}

}  // namespace tarvelin
