// The rows of the items.
#include "model/ItemTable.h"

#include <algorithm>

namespace tarvelin {

namespace {

using enum ItemId;
using enum Wachstum;
constexpr Schlange kG = Schlange::Gebaeude;
constexpr Schlange kW = Schlange::Werft;
constexpr Schlange kF = Schlange::Forschung;
constexpr Dauerformel* kGebaeude = Gebaeudedauer;
constexpr Dauerformel* kDeutMine = Deuteriumminendauer;
constexpr Dauerformel* kEinheit = Einheitendauer;
constexpr Dauerformel* kForschung = Forschungsdauer;

// clang-format off
constexpr JeItem<Itemzeile> kItemtabelle{{{
    //                                                                                                               metal crystal deuterium
    {MetMine,   "GM",   "MetallMine Stufe: ",      "Metallmine: ",         "Metallmine",            kG, {{  40,   10,   0}}, HochAnderthalb,     kGebaeude,  {}, {.Energie = Energierolle::Mine}},
    {KrisMine,  "GK",   "KristallMine Stufe: ",    "Kristallmine: ",       "Kristallmine",          kG, {{  30,   15,   0}}, HochEinsKommaSechs, kGebaeude,  {}, {.Energie = Energierolle::Mine}},
    {DeutMine,  "GD",   "DeuteriumMine Stufe: ",   "Deuteriummine: ",      "Deuteriummine",         kG, {{ 150,   50,   0}}, HochAnderthalb,     kDeutMine,  {}, {.Energie = Energierolle::Mine}},
    {SKW,       "GS",   "Solarkraftwerk Stufe: ",  "Solarkraftwerk: ",     "Solarkraftwerk",        kG, {{  50,   20,   0}}, HochAnderthalb,     kGebaeude,  {}, {.Energie = Energierolle::Kraftwerk}},
    {Robo,      "GR",   "Robofabrik Stufe: ",      "Roboterfabrik: ",      "Roboterfabrik",         kG, {{ 400,  120, 200}}, Doppelt,            kGebaeude,  {}, {.Deuterium = Deuteriumbedarf::Produktion}},
    {Werft,     "GW",   "Raumschiffwerft Stufe: ", "Raumschiffwerft: ",    "Raumschiffwerft",       kG, {{ 400,  200, 100}}, Doppelt,            kGebaeude,  {}, {.Bedient = kW}},
    {Folab,     "GF",   "Forschungslabor Stufe: ", "Forschungslabor: ",    "Forschungslabor",       kG, {{ 200,  400, 200}}, Doppelt,            kGebaeude,  {}, {.Bedient = kF, .Deuterium = Deuteriumbedarf::ProduktionVorerst, .MitGrund = false}},
    {Solsats,   "WS",   "Solarsatellit Nr.: ",     "Solarsatellit Nr: ",   "Solarsatellit",         kW, {{   0, 2000, 500}}, Keines,             kEinheit,   {{{Werft, 1}}}, {.Energie = Energierolle::Satellit, .TrotzAusbau = true}},
    {LJs,       "WLJ",  "Leichter Jäger Nr.: ",    "Leichter Jäger Nr: ",  "Leichter Jäger",        kW, {{3000, 1000,   0}}, Keines,             kEinheit,   {{{Werft, 1}, {VerbTech, 1}}}, {}},
    {KTs,       "WKT",  "Kl. Transporter Nr: ",    "Kl. Transporter Nr: ", "Kleiner Transporter",   kW, {{2000, 2000,   0}}, Keines,             kEinheit,   {{{Werft, 2}, {VerbTech, 2}}}, {}},
    {Spios,     "WSS",  "Spionagesonde Nr: ",      "Spionagesonde Nr: ",   "Spionagesonde",         kW, {{   0, 1000,   0}}, Keines,             kEinheit,   {{{Werft, 3}, {SpioTech, 2}, {VerbTech, 3}}}, {}},
    {Rakws,     "WR",   "Raketenwerfer Nr.: ",     "Raketenwerfer Nr: ",   "Raketenwerfer",         kW, {{2000,    0,   0}}, Keines,             kEinheit,   {{{Werft, 1}}}, {.Hovername = "Rakentenwerfer"}},
    {lLasers,   "WLL",  "Leichter Laser Nr.: ",    "Leichter Laser Nr: ",  "Leichter Laser",        kW, {{1500,  500,   0}}, Keines,             kEinheit,   {{{Werft, 2}, {LaserTech, 3}}}, {}},
    {sLasers,   "WSL",  "Schwerer Laser Nr.: ",    "Schwerer Laser Nr: ",  "Schwerer Laser",        kW, {{6000, 2000,   0}}, Keines,             kEinheit,   {{{Werft, 4}, {LaserTech, 6}, {ENTech, 3}}}, {}},
    {klSchK,    "WKSK", "Kleine Schildkuppel",     "Kleine Schildkuppel",  "Kleine Schildkuppel",   kW, {{10000, 10000, 0}}, Keines,             kEinheit,   {{{Werft, 1}, {SchTech, 2}}}, {.MitNummer = false}},
    {ENTech,    "FE",   "Energietechnik Stufe: ",  "Energietechnik: ",     "Energietechnik",        kF, {{   0,  800, 400}}, Doppelt,            kForschung, {{{Folab, 1}}}, {}},
    {VerbTech,  "FV",   "Verb.Triebwerk Stufe: ",  "Verb.Triebwerk: ",     "Verbrennungstriebwerk", kF, {{ 400,    0, 600}}, Doppelt,            kForschung, {{{Folab, 1}, {ENTech, 1}}}, {}},
    {LaserTech, "FL",   "Lasertechnik Stufe: ",    "Lasertechnik: ",       "Lasertechnik",          kF, {{ 200,  100,   0}}, Doppelt,            kForschung, {{{ENTech, 2}}}, {}},
    {SpioTech,  "FS",   "Spionagetechnik Stufe: ", "Spionagetechnik: ",    "Spionagetechnik",       kF, {{ 200, 1000, 200}}, Doppelt,            kForschung, {}, {}},
    {SchTech,   "FSCH", "Schildtechnik Stufe: ",   "SchildTechnik: ",      "Schildtechnik",         kF, {{ 200,  600,   0}}, Doppelt,            kForschung, {{{Folab, 6}, {ENTech, 3}}}, {}},
}}};
// clang-format on

static_assert(HatJedesItem(kItemtabelle), "every item has its row, in the order of the items");

constexpr Schlange SchlangeNach(char buchstabe) {
    return buchstabe == 'G' ? kG : buchstabe == 'W' ? kW : kF;
}

static_assert(std::ranges::all_of(kItemtabelle,
                                  [](const Itemzeile& z) {
                                      return z.Queue == SchlangeNach(z.Code[0]) &&
                                             !z.Code.starts_with(kProduktionscode);
                                  }),
              "the first letter of a code is its order queue");

}  // namespace

const JeItem<Itemzeile>& Itemtabelle() {
    return kItemtabelle;
}

}  // namespace tarvelin
