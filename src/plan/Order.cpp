// Orders and their `Tag`s.
#include "plan/Order.h"

#include <algorithm>

#include "model/ItemTable.h"
#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

Schlange SchlangeVon(std::string_view tag) {
    switch (tag.empty() ? '\0' : tag.front()) {
        case 'G':
            return Schlange::Gebaeude;
        case 'W':
            return Schlange::Werft;
        case 'F':
            return Schlange::Forschung;
        default:
            return Schlange::Keine;
    }
}

}  // namespace

Auftrag Auftrag::Fuer(ItemId item) {
    return {.Was = Art::Item, .Queue = ZeileVon(item).Queue, .Item = item};
}

Auftrag Auftrag::Fuer(const Minenfaktoren& faktoren) {
    return {.Was = Art::Produktion, .Queue = Schlange::Gebaeude, .Faktoren = faktoren};
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
            return std::string(ZeileVon(Item).Code);
        case Art::Produktion: {
            std::string tag(kProduktionscode);
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
    const auto* const zeile = std::ranges::find(Itemtabelle(), code, &Itemzeile::Code);
    return zeile == Itemtabelle().end() ? std::nullopt : std::optional(zeile->Item);
}

std::optional<Minenfaktoren> LiesMinenfaktoren(std::string_view tag) {
    if (!tag.starts_with(kProduktionscode)) {
        return std::nullopt;
    }
    Minenfaktoren faktoren{};
    for (std::size_t i = 0; i < faktoren.size(); ++i) {
        const auto wert =
            ParseWholeNumber(GetToken(tag, static_cast<int>(i) + 2, ":"), 0, kVollerFaktor);
        if (!wert) {
            return std::nullopt;
        }
        faktoren[i] = static_cast<Byte>(*wert);
    }
    return faktoren;
}

}  // namespace tarvelin
