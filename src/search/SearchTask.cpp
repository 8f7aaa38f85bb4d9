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

JeItem<Byte> MitVoraussetzungen(JeItem<Byte> ziel) {
    // What an item needs can need something itself.
    for (bool mehr = true; mehr;) {
        mehr = false;
        for (const Itemzeile& zeile : Itemtabelle()) {
            if (ziel[zeile.Item] == 0) {
                continue;
            }
            for (const Stufenbedarf& bedarf : Listenbedarf(zeile.Item)) {
                mehr = mehr || ziel[bedarf.Item] < bedarf.Stufe;
                ziel[bedarf.Item] = std::max(ziel[bedarf.Item], bedarf.Stufe);
            }
        }
    }
    return ziel;
}

JeItem<Byte> Endstufen(const std::vector<Auftrag>& orders) {
    JeItem<Byte> stufen{};
    for (const Auftrag& order : orders) {
        if (order.Was == Auftrag::Art::Item) {
            ++stufen[order.Item];
        }
    }
    return stufen;
}

}  // namespace tarvelin
