// The rows of the items.
#include "model/ItemTable.h"

#include <algorithm>

namespace tarvelin {

namespace {

using enum ItemId;
using enum CostGrowth;
constexpr Queue kBuildings = Queue::Building;
constexpr Queue kShipyard = Queue::Shipyard;
constexpr Queue kResearch = Queue::Research;
constexpr UpgradeTimeFormula* kBuildingTime = BuildingTime;
constexpr UpgradeTimeFormula* kDeutMine = DeuteriumMineTime;
constexpr UpgradeTimeFormula* kUnitTime = UnitTime;
constexpr UpgradeTimeFormula* kResearchTime = ResearchTime;

// clang-format off
constexpr PerItem<ItemRow> kItemTable{{{
    //                                                                                                               metal crystal deuterium
    {MetMine,   "GM",   "MetallMine Stufe: ",      "Metallmine: ",         "Metallmine",            kBuildings, {{  40,   10,   0}}, OnePointFive,     kBuildingTime,  {}, {.energyRole = EnergyRole::Mine}},
    {KrisMine,  "GK",   "KristallMine Stufe: ",    "Kristallmine: ",       "Kristallmine",          kBuildings, {{  30,   15,   0}}, OnePointSix, kBuildingTime,  {}, {.energyRole = EnergyRole::Mine}},
    {DeutMine,  "GD",   "DeuteriumMine Stufe: ",   "Deuteriummine: ",      "Deuteriummine",         kBuildings, {{ 150,   50,   0}}, OnePointFive,     kDeutMine,  {}, {.energyRole = EnergyRole::Mine}},
    {SKW,       "GS",   "Solarkraftwerk Stufe: ",  "Solarkraftwerk: ",     "Solarkraftwerk",        kBuildings, {{  50,   20,   0}}, OnePointFive,     kBuildingTime,  {}, {.energyRole = EnergyRole::PowerPlant}},
    {Robo,      "GR",   "Robofabrik Stufe: ",      "Roboterfabrik: ",      "Roboterfabrik",         kBuildings, {{ 400,  120, 200}}, Doubling,            kBuildingTime,  {}, {.deuteriumGate = DeuteriumGate::Production}},
    {Werft,     "GW",   "Raumschiffwerft Stufe: ", "Raumschiffwerft: ",    "Raumschiffwerft",       kBuildings, {{ 400,  200, 100}}, Doubling,            kBuildingTime,  {}, {.serves = kShipyard}},
    {Folab,     "GF",   "Forschungslabor Stufe: ", "Forschungslabor: ",    "Forschungslabor",       kBuildings, {{ 200,  400, 200}}, Doubling,            kBuildingTime,  {}, {.serves = kResearch, .deuteriumGate = DeuteriumGate::ProductionForNow, .showsReason = false}},
    {Solsats,   "WS",   "Solarsatellit Nr.: ",     "Solarsatellit Nr: ",   "Solarsatellit",         kShipyard, {{   0, 2000, 500}}, None,             kUnitTime,   {{{Werft, 1}}}, {.energyRole = EnergyRole::Satellite, .startsDuringUpgrade = true}},
    {LJs,       "WLJ",  "Leichter Jäger Nr.: ",    "Leichter Jäger Nr: ",  "Leichter Jäger",        kShipyard, {{3000, 1000,   0}}, None,             kUnitTime,   {{{Werft, 1}, {VerbTech, 1}}}, {}},
    {KTs,       "WKT",  "Kl. Transporter Nr: ",    "Kl. Transporter Nr: ", "Kleiner Transporter",   kShipyard, {{2000, 2000,   0}}, None,             kUnitTime,   {{{Werft, 2}, {VerbTech, 2}}}, {}},
    {Spios,     "WSS",  "Spionagesonde Nr: ",      "Spionagesonde Nr: ",   "Spionagesonde",         kShipyard, {{   0, 1000,   0}}, None,             kUnitTime,   {{{Werft, 3}, {SpioTech, 2}, {VerbTech, 3}}}, {}},
    {Rakws,     "WR",   "Raketenwerfer Nr.: ",     "Raketenwerfer Nr: ",   "Raketenwerfer",         kShipyard, {{2000,    0,   0}}, None,             kUnitTime,   {{{Werft, 1}}}, {.hoverName = "Rakentenwerfer"}},
    {lLasers,   "WLL",  "Leichter Laser Nr.: ",    "Leichter Laser Nr: ",  "Leichter Laser",        kShipyard, {{1500,  500,   0}}, None,             kUnitTime,   {{{Werft, 2}, {LaserTech, 3}}}, {}},
    {sLasers,   "WSL",  "Schwerer Laser Nr.: ",    "Schwerer Laser Nr: ",  "Schwerer Laser",        kShipyard, {{6000, 2000,   0}}, None,             kUnitTime,   {{{Werft, 4}, {LaserTech, 6}, {ENTech, 3}}}, {}},
    {klSchK,    "WKSK", "Kleine Schildkuppel",     "Kleine Schildkuppel",  "Kleine Schildkuppel",   kShipyard, {{10000, 10000, 0}}, None,             kUnitTime,   {{{Werft, 1}, {SchTech, 2}}}, {.showsNumber = false}},
    {ENTech,    "FE",   "Energietechnik Stufe: ",  "Energietechnik: ",     "Energietechnik",        kResearch, {{   0,  800, 400}}, Doubling,            kResearchTime, {{{Folab, 1}}}, {}},
    {VerbTech,  "FV",   "Verb.Triebwerk Stufe: ",  "Verb.Triebwerk: ",     "Verbrennungstriebwerk", kResearch, {{ 400,    0, 600}}, Doubling,            kResearchTime, {{{Folab, 1}, {ENTech, 1}}}, {}},
    {LaserTech, "FL",   "Lasertechnik Stufe: ",    "Lasertechnik: ",       "Lasertechnik",          kResearch, {{ 200,  100,   0}}, Doubling,            kResearchTime, {{{ENTech, 2}}}, {}},
    {SpioTech,  "FS",   "Spionagetechnik Stufe: ", "Spionagetechnik: ",    "Spionagetechnik",       kResearch, {{ 200, 1000, 200}}, Doubling,            kResearchTime, {}, {}},
    {SchTech,   "FSCH", "Schildtechnik Stufe: ",   "SchildTechnik: ",      "Schildtechnik",         kResearch, {{ 200,  600,   0}}, Doubling,            kResearchTime, {{{Folab, 6}, {ENTech, 3}}}, {}},
}}};
// clang-format on

static_assert(CoversEveryItem(kItemTable), "every item has its row, in the order of the items");

constexpr Queue QueueOf(char letter) {
    return letter == 'G' ? kBuildings : letter == 'W' ? kShipyard : kResearch;
}

static_assert(std::ranges::all_of(kItemTable,
                                  [](const ItemRow& z) {
                                      return z.queue == QueueOf(z.ItemCode[0]) &&
                                             !z.ItemCode.starts_with(kProductionCode);
                                  }),
              "the first letter of a code is its order queue");

}  // namespace

const PerItem<ItemRow>& ItemTable() {
    return kItemTable;
}

}  // namespace tarvelin
