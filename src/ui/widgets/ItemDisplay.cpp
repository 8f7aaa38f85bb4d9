// Names of the screen.
#include "ui/widgets/ItemDisplay.h"

#include <algorithm>

namespace tarvelin {

namespace {

using enum ItemId;
using enum Bildgruppe;

// clang-format off
constexpr PerItem<Itemansicht> kAnsichten{{{
    {MetMine,   "ImgMetMine",   "LBL_MetMine_Stufe",   "Metallmine",     Gebaeude},
    {KrisMine,  "ImgKrisMine",  "LBL_Krismine_Stufe",  "Kristallmine",   Gebaeude},
    {DeutMine,  "ImgDeutMine",  "LBL_Deutmine_Stufe",  "Deutmine",       Gebaeude},
    {SKW,       "ImgSKW",       "LBL_SKW_Stufe",       "Sol.kraftwerk",  Gebaeude},
    {Robo,      "ImgRobo",      "LBL_Robo_Stufe",      "Robo-Fabrik",    Gebaeude},
    {Werft,     "ImgWerft",     "LBL_Werft_Stufe",     "Werft",          Gebaeude},
    {Folab,     "imgFolab",     "LBL_Folab_Stufe",     "Forsch-Labor",   Gebaeude},
    {Solsats,   "imgSolsats",   "LBL_SolSat_Stufe",    "Solarsatellit",  Raumschiffe},
    {LJs,       "imgLJs",       "LBL_LJs_Stufe",       "L. Jäger",       Raumschiffe},
    {KTs,       "imgKTs",       "LBL_KTs_Stufe",       "Kl. Transport.", Raumschiffe},
    {Spios,     "imgSpios",     "LBL_Spios_Stufe",     "Spiosonde",      Raumschiffe},
    {Rakws,     "imgRakws",     "LBL_Rakws_Stufe",     "Raketenw.",      Verteidigung},
    {lLasers,   "imglLasers",   "LBL_lLasers_Stufe",   "L. Laser",       Verteidigung},
    {sLasers,   "imgsLasers",   "LBL_sLasers_Stufe",   "S.Laser",        Verteidigung},
    {klSchK,    "imgklSchK",    "LBL_klSchK_Stufe",    "kl. Schildkup.", Verteidigung},
    {ENTech,    "imgENTech",    "LBL_ENTech_Stufe",    "Energietech.",   Forschung},
    {VerbTech,  "imgVerbTech",  "LBL_VerbTech_Stufe",  "Verb.Triebw.",   Forschung},
    {LaserTech, "imgLaserTech", "LBL_LaserTech_Stufe", "Lasertech.",     Forschung},
    {SpioTech,  "imgSpioTech",  "LBL_SpioTech_Stufe",  "Spiotech.",      Forschung},
    {SchTech,   "imgSchTech",   "LBL_SchTech_Stufe",   "Schildtech.",    Gebaeude},
}}};
// clang-format on

static_assert(CoversEveryItem(kAnsichten), "every item has its picture, in the order of the items");

}  // namespace

const PerItem<Itemansicht>& Itemansichten() {
    return kAnsichten;
}

std::optional<ItemId> ItemVonBild(std::string_view bild) {
    const auto* const ansicht = std::ranges::find(kAnsichten, bild, &Itemansicht::Bild);
    return ansicht == kAnsichten.end() ? std::nullopt : std::optional(ansicht->Item);
}

}  // namespace tarvelin
