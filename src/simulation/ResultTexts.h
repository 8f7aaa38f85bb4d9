// The texts of the labels that show what a run came to.
#pragma once

#include <string>

#include "model/GameState.h"

namespace tarvelin {

/// "01 Tage 01:01:01": the clock of a run.
[[nodiscard]] std::string Dauertext(const GameState& stand);
/// "75,3": a point is a thousand units of resources spent.
[[nodiscard]] std::string Punktetext(const GameState& stand);
/// The same with what lies unspent.
[[nodiscard]] std::string PunkteMitVorratText(const GameState& stand);

/// The captions, as the window starts with them. Each of the functions below writes the labels
/// that its event touches and leaves the others.
struct Ergebnistexte {
    std::string LBL_Timegone = "Dauer: dd:hh:mm:ss";
    std::string LBL_Timegone2 = "Dauer: dd:hh:mm:ss";
    std::string LBL_Met = "500";
    std::string LBL_Kris = "500";
    std::string LBL_Deut = "0";
    std::string LBL_ENergie = "0 / 0";
    std::string LBL_Punkte = "0";
    std::string LBL_Punkte_Hinweis;

    void NachReset();
    void NachClear();
    void NachLauf(const GameState& stand);
};

}  // namespace tarvelin
