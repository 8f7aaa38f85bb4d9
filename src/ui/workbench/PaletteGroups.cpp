// The tables of groups and names.
#include "ui/workbench/PaletteGroups.h"

namespace tarvelin {

namespace {

using enum ItemId;

constexpr std::array kBuildings{MetMine, KrisMine, DeutMine, SKW, Robo, Werft, Folab};
constexpr std::array kResearch{ENTech, VerbTech, LaserTech, SpioTech, SchTech};
constexpr std::array kShips{Solsats, LJs, KTs, Spios};
constexpr std::array kDefences{Rakws, lLasers, sLasers, klSchK};

constexpr std::array<PaletteGroup, 4> kGroups{{{"Gebäude", kBuildings},
                                               {"Forschung", kResearch},
                                               {"Raumschiffe", kShips},
                                               {"Verteidigung", kDefences}}};
static_assert(kBuildings.size() + kResearch.size() + kShips.size() + kDefences.size() == kNumItems);

struct NameRow {
    ItemId item;
    const char* name;
};

// clang-format off
constexpr PerItem<NameRow> kNames{{{
    {MetMine,   "Metall-\nmine"},
    {KrisMine,  "Kristall-\nmine"},
    {DeutMine,  "Deuterium-\nmine"},
    {SKW,       "Solar-\nkraftwerk"},
    {Robo,      "Roboter-\nfabrik"},
    {Werft,     "Raumschiff-\nwerft"},
    {Folab,     "Forschungs-\nlabor"},
    {Solsats,   "Solar-\nsatellit"},
    {LJs,       "Leichter\nJäger"},
    {KTs,       "Kleiner\nTransporter"},
    {Spios,     "Spionage-\nsonde"},
    {Rakws,     "Raketen-\nwerfer"},
    {lLasers,   "Leichter\nLaser"},
    {sLasers,   "Schwerer\nLaser"},
    {klSchK,    "Kleine\nSchildkuppel"},
    {ENTech,    "Energie-\ntechnik"},
    {VerbTech,  "Verbrenn.-\ntriebwerk"},
    {LaserTech, "Laser-\ntechnik"},
    {SpioTech,  "Spionage-\ntechnik"},
    {SchTech,   "Schild-\ntechnik"},
}}};
// clang-format on

static_assert(CoversEveryItem(kNames));

}  // namespace

const std::array<PaletteGroup, 4>& PaletteGroups() {
    return kGroups;
}

const char* TwoLineName(ItemId item) {
    return kNames[item].name;
}

}  // namespace tarvelin
