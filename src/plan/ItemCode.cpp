// The code table.
#include "plan/ItemCode.h"

#include <algorithm>

namespace tarvelin {

namespace {

// clang-format off
constexpr std::array<ItemZeile, kItemAnzahl> kItemTabelle{{
    {ItemId::MetMine, "GM", "ImgMetMine", "LBL_MetMine_Stufe", "MetallMine Stufe: ", "Metallmine", "Metallmine", Energietext::Bedarf},
    {ItemId::KrisMine, "GK", "ImgKrisMine", "LBL_Krismine_Stufe", "KristallMine Stufe: ", "Kristallmine", "Kristallmine", Energietext::Bedarf},
    {ItemId::DeutMine, "GD", "ImgDeutMine", "LBL_Deutmine_Stufe", "DeuteriumMine Stufe: ", "Deutmine", "Deuteriummine", Energietext::Bedarf},
    {ItemId::SKW, "GS", "ImgSKW", "LBL_SKW_Stufe", "Solarkraftwerk Stufe: ", "Sol.kraftwerk", "Solarkraftwerk", Energietext::Stufenertrag},
    {ItemId::Robo, "GR", "ImgRobo", "LBL_Robo_Stufe", "Robofabrik Stufe: ", "Robo-Fabrik", "Roboterfabrik"},
    {ItemId::Werft, "GW", "ImgWerft", "LBL_Werft_Stufe", "Raumschiffwerft Stufe: ", "Werft", "Raumschiffwerft"},
    {ItemId::Folab, "GF", "imgFolab", "LBL_Folab_Stufe", "Forschungslabor Stufe: ", "Forsch-Labor", "Forschungslabor"},
    {ItemId::Solsats, "WS", "imgSolsats", "LBL_SolSat_Stufe", "Solarsatellit Nr.: ", "Solarsatellit", "Solarsatellit", Energietext::Stueckertrag},
    {ItemId::LJs, "WLJ", "imgLJs", "LBL_LJs_Stufe", "Leichter Jäger Nr.: ", "L. Jäger", "Leichter Jäger"},
    {ItemId::KTs, "WKT", "imgKTs", "LBL_KTs_Stufe", "Kl. Transporter Nr: ", "Kl. Transport.", "Kleiner Transporter"},
    {ItemId::Spios, "WSS", "imgSpios", "LBL_Spios_Stufe", "Spionagesonde Nr: ", "Spiosonde", "Spionagesonde"},
    {ItemId::Rakws, "WR", "imgRakws", "LBL_Rakws_Stufe", "Raketenwerfer Nr.: ", "Raketenw.", "Rakentenwerfer"},
    {ItemId::lLasers, "WLL", "imglLasers", "LBL_lLasers_Stufe", "Leichter Laser Nr.: ", "L. Laser", "Leichter Laser"},
    {ItemId::sLasers, "WSL", "imgsLasers", "LBL_sLasers_Stufe", "Schwerer Laser Nr.: ", "S.Laser", "Schwerer Laser"},
    {ItemId::klSchK, "WKSK", "imgklSchK", "LBL_klSchK_Stufe", "Kleine Schildkuppel", "kl. Schildkup.", "Kleine Schildkuppel"},
    {ItemId::ENTech, "FE", "imgENTech", "LBL_ENTech_Stufe", "Energietechnik Stufe: ", "Energietech.", "Energietechnik"},
    {ItemId::VerbTech, "FV", "imgVerbTech", "LBL_VerbTech_Stufe", "Verb.Triebwerk Stufe: ", "Verb.Triebw.", "Verbrennungstriebwerk"},
    {ItemId::LaserTech, "FL", "imgLaserTech", "LBL_LaserTech_Stufe", "Lasertechnik Stufe: ", "Lasertech.", "Lasertechnik"},
    {ItemId::SpioTech, "FS", "imgSpioTech", "LBL_SpioTech_Stufe", "Spionagetechnik Stufe: ", "Spiotech.", "Spionagetechnik"},
    {ItemId::SchTech, "FSCH", "imgSchTech", "LBL_SchTech_Stufe", "Schildtechnik Stufe: ", "Schildtech.", "Schildtechnik"},
}};
// clang-format on

/// Where the row of an item stands in the table.
constexpr JeItem<std::size_t> Stellen() {
    JeItem<std::size_t> stellen{};
    stellen.fill(kItemAnzahl);
    for (std::size_t i = 0; i < kItemAnzahl; ++i) {
        stellen[kItemTabelle[i].Item] = i;
    }
    return stellen;
}

constexpr JeItem<std::size_t> kStellen = Stellen();

static_assert(std::ranges::find(kStellen, kItemAnzahl) == kStellen.end(),
              "every item has its row in the code table");
static_assert(std::ranges::all_of(kItemTabelle,
                                  [](const ItemZeile& z) {
                                      return (z.Code[0] == 'G' || z.Code[0] == 'W' ||
                                              z.Code[0] == 'F') &&
                                             !z.Code.starts_with(kProduktionscode);
                                  }),
              "the first letter of a code is its order queue");

std::optional<ItemId> Suche(std::string_view ItemZeile::*spalte, std::string_view text) {
    const auto* const zeile = std::ranges::find(kItemTabelle, text, spalte);
    return zeile == kItemTabelle.end() ? std::nullopt : std::optional(zeile->Item);
}

}  // namespace

const std::array<ItemZeile, kItemAnzahl>& ItemTabelle() {
    return kItemTabelle;
}

const ItemZeile& ZeileVon(ItemId item) {
    return kItemTabelle[kStellen[item]];
}

std::optional<ItemId> ItemVonCode(std::string_view code) {
    return Suche(&ItemZeile::Code, code);
}

std::optional<ItemId> ItemVonBild(std::string_view bild) {
    return Suche(&ItemZeile::Bild, bild);
}

}  // namespace tarvelin
