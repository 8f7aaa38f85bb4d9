// The texts of the labels that show the result of a run.
#pragma once

#include <string>

#include "model/GameState.h"

namespace tarvelin {

/// "01 Tage 01:01:01": the clock of a run.
[[nodiscard]] std::string DurationText(const GameState& state);
[[nodiscard]] std::string DurationText(Long seconds);
/// "75,3": a point is a thousand units of resources spent.
[[nodiscard]] std::string PointsText(const GameState& state);
/// The same with the unspent stocks.
[[nodiscard]] std::string PointsWithStockText(const GameState& state);

/// The captions, at first as the window opens with them. Each function sets the labels that its
/// event changes and leaves the others.
struct ResultTexts {
    std::string LBL_Timegone = "Dauer: dd:hh:mm:ss";
    std::string LBL_Timegone2 = "Dauer: dd:hh:mm:ss";
    std::string LBL_Met = "500";
    std::string LBL_Kris = "500";
    std::string LBL_Deut = "0";
    std::string LBL_ENergie = "0 / 0";
    std::string LBL_Punkte = "0";
    std::string LBL_Punkte_Hint;

    void AfterReset();
    void AfterClear();
    void AfterRun(const GameState& state);
};

}  // namespace tarvelin
