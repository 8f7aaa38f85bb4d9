// The rows of the items.
#include "model/ItemTable.h"

#include <algorithm>

namespace tarvelin {

namespace {

using enum ItemId;
using enum CostGrowth;
constexpr Queue kBuilding = Queue::Building;
constexpr Queue kShipyard = Queue::Shipyard;
constexpr Queue kResearch = Queue::Research;

// clang-format off
constexpr PerItem<ItemRow> kItemTable{{{
    // the product's class                     code    build list                 build times             elsewhere                           met. crys. deut.       growth        time               needs
    /* cMetallMine                   */ {MetMine,   "GM",   "MetallMine Stufe: ",      "Metallmine: ",         "Metallmine",            kBuilding, {{   40,    10,   0}}, OnePointFive, BuildingTime,      {},                                           {.energyRole = EnergyRole::Mine, .economyRank = 1}},
    /* cKristallMine                 */ {KrisMine,  "GK",   "KristallMine Stufe: ",    "Kristallmine: ",       "Kristallmine",          kBuilding, {{   30,    15,   0}}, OnePointSix,  BuildingTime,      {},                                           {.energyRole = EnergyRole::Mine, .economyRank = 2}},
    /* cDeuteriumMine                */ {DeutMine,  "GD",   "DeuteriumMine Stufe: ",   "Deuteriummine: ",      "Deuteriummine",         kBuilding, {{  150,    50,   0}}, OnePointFive, DeuteriumMineTime, {},                                           {.energyRole = EnergyRole::Mine, .economyRank = 3}},
    /* cSolarKraftWerk               */ {SKW,       "GS",   "Solarkraftwerk Stufe: ",  "Solarkraftwerk: ",     "Solarkraftwerk",        kBuilding, {{   50,    20,   0}}, OnePointFive, BuildingTime,      {},                                           {.energyRole = EnergyRole::PowerPlant, .economyRank = 4}},
    /* cRoboterFabrik                */ {Robo,      "GR",   "Robofabrik Stufe: ",      "Roboterfabrik: ",      "Roboterfabrik",         kBuilding, {{  400,   120, 200}}, Doubling,     BuildingTime,      {},                                           {.deuteriumGate = DeuteriumGate::Production, .economyRank = 6}},
    /* cRaumschiffWerft              */ {Werft,     "GW",   "Raumschiffwerft Stufe: ", "Raumschiffwerft: ",    "Raumschiffwerft",       kBuilding, {{  400,   200, 100}}, Doubling,     BuildingTime,      {},                                           {.serves = kShipyard, .economyRank = 7}},
    /* cForschungslabor              */ {Folab,     "GF",   "Forschungslabor Stufe: ", "Forschungslabor: ",    "Forschungslabor",       kBuilding, {{  200,   400, 200}}, Doubling,     BuildingTime,      {},                                           {.serves = kResearch, .deuteriumGate = DeuteriumGate::ProductionForNow, .showsReason = false, .economyRank = 8}},
    /* cSolarsatellit                */ {Solsats,   "WS",   "Solarsatellit Nr.: ",     "Solarsatellit Nr: ",   "Solarsatellit",         kShipyard, {{    0,  2000, 500}}, None,         UnitTime,          {{{Werft, 1}}},                               {.energyRole = EnergyRole::Satellite, .startsDuringUpgrade = true, .economyRank = 5}},
    /* cLeichterJaeger               */ {LJs,       "WLJ",  "Leichter Jäger Nr.: ",    "Leichter Jäger Nr: ",  "Leichter Jäger",        kShipyard, {{ 3000,  1000,   0}}, None,         UnitTime,          {{{Werft, 1}, {VerbTech, 1}}},                {}},
    /* cKleinerTransporter           */ {KTs,       "WKT",  "Kl. Transporter Nr: ",    "Kl. Transporter Nr: ", "Kleiner Transporter",   kShipyard, {{ 2000,  2000,   0}}, None,         UnitTime,          {{{Werft, 2}, {VerbTech, 2}}},                {}},
    /* cSpionagesonde                */ {Spios,     "WSS",  "Spionagesonde Nr: ",      "Spionagesonde Nr: ",   "Spionagesonde",         kShipyard, {{    0,  1000,   0}}, None,         UnitTime,          {{{Werft, 3}, {SpioTech, 2}, {VerbTech, 3}}}, {}},
    /* cRaketenwerfer                */ {Rakws,     "WR",   "Raketenwerfer Nr.: ",     "Raketenwerfer Nr: ",   "Raketenwerfer",         kShipyard, {{ 2000,     0,   0}}, None,         UnitTime,          {{{Werft, 1}}},                               {.hoverName = "Rakentenwerfer"}},
    /* cLeichterLaser                */ {lLasers,   "WLL",  "Leichter Laser Nr.: ",    "Leichter Laser Nr: ",  "Leichter Laser",        kShipyard, {{ 1500,   500,   0}}, None,         UnitTime,          {{{Werft, 2}, {LaserTech, 3}}},               {}},
    /* cSchwererLaser                */ {sLasers,   "WSL",  "Schwerer Laser Nr.: ",    "Schwerer Laser Nr: ",  "Schwerer Laser",        kShipyard, {{ 6000,  2000,   0}}, None,         UnitTime,          {{{Werft, 4}, {LaserTech, 6}, {ENTech, 3}}},  {}},
    /* cKleineSchildkuppel           */ {klSchK,    "WKSK", "Kleine Schildkuppel",     "Kleine Schildkuppel",  "Kleine Schildkuppel",   kShipyard, {{10000, 10000,   0}}, None,         UnitTime,          {{{Werft, 1}, {SchTech, 2}}},                 {.showsNumber = false, .maxCount = 1}},
    /* cEnergietechnik               */ {ENTech,    "FE",   "Energietechnik Stufe: ",  "Energietechnik: ",     "Energietechnik",        kResearch, {{    0,   800, 400}}, Doubling,     ResearchTime,      {{{Folab, 1}}},                               {}},
    /* cVerbrennungstriebwerktechnik */ {VerbTech,  "FV",   "Verb.Triebwerk Stufe: ",  "Verb.Triebwerk: ",     "Verbrennungstriebwerk", kResearch, {{  400,     0, 600}}, Doubling,     ResearchTime,      {{{Folab, 1}, {ENTech, 1}}},                  {}},
    /* cLasertechnik                 */ {LaserTech, "FL",   "Lasertechnik Stufe: ",    "Lasertechnik: ",       "Lasertechnik",          kResearch, {{  200,   100,   0}}, Doubling,     ResearchTime,      {{{ENTech, 2}}},                              {}},
    /* cSpionageTechnik              */ {SpioTech,  "FS",   "Spionagetechnik Stufe: ", "Spionagetechnik: ",    "Spionagetechnik",       kResearch, {{  200,  1000, 200}}, Doubling,     ResearchTime,      {},                                           {}},
    /* cSchildtechnik                */ {SchTech,   "FSCH", "Schildtechnik Stufe: ",   "SchildTechnik: ",      "Schildtechnik",         kResearch, {{  200,   600,   0}}, Doubling,     ResearchTime,      {{{Folab, 6}, {ENTech, 3}}},                  {}},
}}};
// clang-format on

static_assert(CoversEveryItem(kItemTable), "one row for each item, in the sequence of ItemId");

constexpr Queue QueueOf(char letter) {
    return letter == 'G' ? kBuilding : letter == 'W' ? kShipyard : kResearch;
}

static_assert(std::ranges::all_of(kItemTable,
                                  [](const ItemRow& row) {
                                      return row.queue == QueueOf(row.ItemCode[0]) &&
                                             !row.ItemCode.starts_with(kProductionCode);
                                  }),
              "the first letter of a code is its order queue");

}  // namespace

const PerItem<ItemRow>& ItemTable() {
    return kItemTable;
}

}  // namespace tarvelin
