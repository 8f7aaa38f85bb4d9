// Goals and what they need.
#include "search/SearchTask.h"

#include <algorithm>
#include <array>

#include "plan/Rules.h"

namespace tarvelin {

bool IstWirtschaft(ItemId item) {
    constexpr std::array kWirtschaft{ItemId::MetMine, ItemId::KrisMine, ItemId::DeutMine,
                                     ItemId::SKW,     ItemId::Robo,     ItemId::Werft,
                                     ItemId::Folab,   ItemId::Solsats};
    return std::ranges::find(kWirtschaft, item) != kWirtschaft.end();
}

PerItem<Byte> MitVoraussetzungen(PerItem<Byte> ziel) {
    // What an item needs can need something itself.
    for (bool mehr = true; mehr;) {
        mehr = false;
        for (const ItemRow& zeile : ItemTable()) {
            if (ziel[zeile.item] == 0) {
                continue;
            }
            for (const LevelRequirement& bedarf : Listenbedarf(zeile.item)) {
                mehr = mehr || ziel[bedarf.item] < bedarf.minLevel;
                ziel[bedarf.item] = std::max(ziel[bedarf.item], bedarf.minLevel);
            }
        }
    }
    return ziel;
}

PerItem<Byte> Endstufen(const std::vector<Auftrag>& orders) {
    PerItem<Byte> stufen{};
    for (const Auftrag& order : orders) {
        if (order.Was == Auftrag::Art::Item) {
            ++stufen[order.Item];
        }
    }
    return stufen;
}

}  // namespace tarvelin
