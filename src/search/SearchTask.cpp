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
            for (const LevelRequirement& bedarf : ListRequirements(zeile.item)) {
                mehr = mehr || ziel[bedarf.item] < bedarf.minLevel;
                ziel[bedarf.item] = std::max(ziel[bedarf.item], bedarf.minLevel);
            }
        }
    }
    return ziel;
}

PerItem<Byte> Endstufen(const std::vector<Order>& orders) {
    PerItem<Byte> stufen{};
    for (const Order& order : orders) {
        if (order.kind == Order::Kind::Item) {
            ++stufen[order.item];
        }
    }
    return stufen;
}

}  // namespace tarvelin
