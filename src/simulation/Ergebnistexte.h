// The texts of the labels that show what a run came to.
#pragma once

#include <string>

#include "model/GlobaleVariablen.h"

namespace tarvelin {

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
    std::string LBL_Punkte_Hinweis = " Punkte ";

    void NachReset();
    void NachClear();
    /// A point is a thousand units of resources spent; the hint of the points adds what lies
    /// unspent.
    void NachLauf(const GlobaleVariablen& globale);
};

}  // namespace tarvelin
