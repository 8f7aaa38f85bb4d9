// Result labels.
#include "simulation/ResultTexts.h"

#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

std::string AlsPunkte(double ressourcen) {
    constexpr double kRessourcenJePunkt = 1000;
    constexpr int kStellen = 3;
    return DecimalText(ressourcen / kRessourcenJePunkt, kStellen);
}

}  // namespace

std::string Dauertext(const GameState& stand) {
    return FormatDuration(stand.secsgone.Seconds(), "s", "dd(0)hh:mm:ss", "d");
}

std::string Punktetext(const GameState& stand) {
    return AlsPunkte(stand.VerbauteRessourcen);
}

std::string PunkteMitVorratText(const GameState& stand) {
    return AlsPunkte((FixedPoint::FromWhole(stand.VerbauteRessourcen) +
                      stand.stock[Resource::Deuterium] + stand.stock[Resource::Kristall] +
                      stand.stock[Resource::Metall])
                         .ToDouble());
}

void Ergebnistexte::NachReset() {
    const Ergebnistexte anfang;
    LBL_Timegone2 = anfang.LBL_Timegone2;
    LBL_Punkte = anfang.LBL_Punkte;
}

void Ergebnistexte::NachClear() {
    const Ergebnistexte anfang;
    LBL_Timegone = anfang.LBL_Timegone;
    LBL_Deut = anfang.LBL_Deut;
    LBL_Kris = anfang.LBL_Kris;
    LBL_Met = anfang.LBL_Met;
    LBL_ENergie = anfang.LBL_ENergie;
}

void Ergebnistexte::NachLauf(const GameState& stand) {
    LBL_Timegone = "Dauer: " + Dauertext(stand);
    LBL_Timegone2 = LBL_Timegone;
    LBL_Met = std::to_string(stand.stock[Resource::Metall].WholePart());
    LBL_Kris = std::to_string(stand.stock[Resource::Kristall].WholePart());
    LBL_Deut = std::to_string(stand.stock[Resource::Deuterium].WholePart());
    LBL_ENergie =
        std::to_string(LongSum(stand.EnergieProduktion, -std::int64_t{stand.EnergieVerbrauch})) +
        " / " + std::to_string(stand.EnergieProduktion);
    LBL_Punkte = Punktetext(stand) + " P";
    LBL_Punkte_Hinweis = "Inkl. Res.: " + PunkteMitVorratText(stand) + " Punkte";
}

}  // namespace tarvelin
