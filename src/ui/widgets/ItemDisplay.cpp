// The table of pictures, level labels and captions.
#include "ui/widgets/ItemDisplay.h"

#include <algorithm>

namespace tarvelin {

namespace {

using enum ItemId;
using enum PictureGroup;

// clang-format off
constexpr PerItem<ItemDisplay> kDisplays{{{
    {MetMine,   "ImgMetMine",   "LBL_MetMine_Stufe",   "Metallmine",     Buildings},
    {KrisMine,  "ImgKrisMine",  "LBL_Krismine_Stufe",  "Kristallmine",   Buildings},
    {DeutMine,  "ImgDeutMine",  "LBL_Deutmine_Stufe",  "Deutmine",       Buildings},
    {SKW,       "ImgSKW",       "LBL_SKW_Stufe",       "Sol.kraftwerk",  Buildings},
    {Robo,      "ImgRobo",      "LBL_Robo_Stufe",      "Robo-Fabrik",    Buildings},
    {Werft,     "ImgWerft",     "LBL_Werft_Stufe",     "Werft",          Buildings},
    {Folab,     "imgFolab",     "LBL_Folab_Stufe",     "Forsch-Labor",   Buildings},
    {Solsats,   "imgSolsats",   "LBL_SolSat_Stufe",    "Solarsatellit",  Ships},
    {LJs,       "imgLJs",       "LBL_LJs_Stufe",       "L. Jäger",       Ships},
    {KTs,       "imgKTs",       "LBL_KTs_Stufe",       "Kl. Transport.", Ships},
    {Spios,     "imgSpios",     "LBL_Spios_Stufe",     "Spiosonde",      Ships},
    {Rakws,     "imgRakws",     "LBL_Rakws_Stufe",     "Raketenw.",      Defense},
    {lLasers,   "imglLasers",   "LBL_lLasers_Stufe",   "L. Laser",       Defense},
    {sLasers,   "imgsLasers",   "LBL_sLasers_Stufe",   "S.Laser",        Defense},
    {klSchK,    "imgklSchK",    "LBL_klSchK_Stufe",    "kl. Schildkup.", Defense},
    {ENTech,    "imgENTech",    "LBL_ENTech_Stufe",    "Energietech.",   Research},
    {VerbTech,  "imgVerbTech",  "LBL_VerbTech_Stufe",  "Verb.Triebw.",   Research},
    {LaserTech, "imgLaserTech", "LBL_LaserTech_Stufe", "Lasertech.",     Research},
    {SpioTech,  "imgSpioTech",  "LBL_SpioTech_Stufe",  "Spiotech.",      Research},
    {SchTech,   "imgSchTech",   "LBL_SchTech_Stufe",   "Schildtech.",    Buildings},
}}};
// clang-format on

static_assert(CoversEveryItem(kDisplays), "every item has its picture, in the order of the items");

}  // namespace

const PerItem<ItemDisplay>& ItemDisplays() {
    return kDisplays;
}

std::optional<ItemId> ItemFromPicture(std::string_view picture) {
    const auto* const display = std::ranges::find(kDisplays, picture, &ItemDisplay::pictureName);
    return display == kDisplays.end() ? std::nullopt : std::optional(display->item);
}

}  // namespace tarvelin
