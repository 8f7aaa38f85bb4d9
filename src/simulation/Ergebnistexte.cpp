// Result labels.
#include "simulation/Ergebnistexte.h"

#include "util/Nuetzliches.h"
#include "util/Zahlentext.h"

namespace tarvelin {

namespace {

std::string AlsPunkte(double ressourcen) {
    constexpr double kRessourcenJePunkt = 1000;
    constexpr int kStellen = 3;
    return Dezimaltext(ressourcen / kRessourcenJePunkt, kStellen);
}

}  // namespace

std::string Dauertext(const GlobaleVariablen& globale) {
    return FormatDuration(globale.secsgone.Sekunden(), "s", "dd(0)hh:mm:ss", "d");
}

std::string Punktetext(const GlobaleVariablen& globale) {
    return AlsPunkte(globale.VerbauteRessourcen);
}

std::string PunkteMitVorratText(const GlobaleVariablen& globale) {
    return AlsPunkte((Festkomma::AusGanzzahl(globale.VerbauteRessourcen) + globale.Deuterium +
                      globale.Kristall + globale.Metall)
                         .AlsDouble());
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

void Ergebnistexte::NachLauf(const GlobaleVariablen& globale) {
    LBL_Timegone = "Dauer: " + Dauertext(globale);
    LBL_Timegone2 = LBL_Timegone;
    LBL_Met = std::to_string(globale.Metall.GanzerTeil());
    LBL_Kris = std::to_string(globale.Kristall.GanzerTeil());
    LBL_Deut = std::to_string(globale.Deuterium.GanzerTeil());
    LBL_ENergie = std::to_string(LongSumme(globale.EnergieProduktion,
                                           -std::int64_t{globale.EnergieVerbrauch})) +
                  " / " + std::to_string(globale.EnergieProduktion);
    LBL_Punkte = Punktetext(globale) + " P";
    LBL_Punkte_Hinweis = "Inkl. Res.: " + PunkteMitVorratText(globale) + " Punkte";
}

}  // namespace tarvelin
