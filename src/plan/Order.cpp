// Orders and their `Tag`s.
#include "plan/Order.h"

#include <algorithm>

#include "model/ItemTable.h"
#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

Queue SchlangeVon(std::string_view tag) {
    switch (tag.empty() ? '\0' : tag.front()) {
        case 'G':
            return Queue::Building;
        case 'W':
            return Queue::Shipyard;
        case 'F':
            return Queue::Research;
        default:
            return Queue::None;
    }
}

}  // namespace

Auftrag Auftrag::Fuer(ItemId item) {
    return {.Was = Art::Item, .Queue = RowOf(item).queue, .Item = item};
}

Auftrag Auftrag::Fuer(const MineFactors& faktoren) {
    return {.Was = Art::Produktion, .Queue = Queue::Building, .Faktoren = faktoren};
}

Auftrag Auftrag::AusTag(std::string_view tag) {
    if (const auto item = ItemVonCode(tag)) {
        return Fuer(*item);
    }
    if (const auto faktoren = LiesMinenfaktoren(tag)) {
        return Fuer(*faktoren);
    }
    return {.Queue = SchlangeVon(tag)};
}

std::string Auftrag::Tag() const {
    switch (Was) {
        case Art::Item:
            return std::string(RowOf(Item).ItemCode);
        case Art::Produktion: {
            std::string tag(kProductionCode);
            for (const Byte faktor : Faktoren) {
                tag += ":" + std::to_string(faktor);
            }
            return tag;
        }
        case Art::Unbekannt:
            break;
    }
    return "";
}

std::optional<ItemId> ItemVonCode(std::string_view code) {
    const auto* const zeile = std::ranges::find(ItemTable(), code, &ItemRow::ItemCode);
    return zeile == ItemTable().end() ? std::nullopt : std::optional(zeile->item);
}

std::optional<MineFactors> LiesMinenfaktoren(std::string_view tag) {
    if (!tag.starts_with(kProductionCode)) {
        return std::nullopt;
    }
    MineFactors faktoren{};
    for (std::size_t i = 0; i < faktoren.size(); ++i) {
        const auto wert =
            ParseWholeNumber(GetToken(tag, static_cast<int>(i) + 2, ":"), 0, kFullFactor);
        if (!wert) {
            return std::nullopt;
        }
        faktoren[i] = static_cast<Byte>(*wert);
    }
    return faktoren;
}

}  // namespace tarvelin
