// Understanding of a row's `Tag`.
#include "plan/Auftrag.h"

#include "plan/ItemCode.h"
#include "util/Nuetzliches.h"
#include "util/Zahlentext.h"

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

Auftrag Auftrag::AusTag(std::string_view tag) {
    Auftrag auftrag;
    auftrag.Queue = SchlangeVon(tag);
    if (const auto item = ItemVonCode(tag)) {
        auftrag.Was = Art::Item;
        auftrag.Item = *item;
    } else if (const auto faktoren = LiesMinenfaktoren(tag)) {
        auftrag.Was = Art::Produktion;
        auftrag.Faktoren = *faktoren;
    }
    return auftrag;
}

std::optional<Minenfaktoren> LiesMinenfaktoren(std::string_view tag) {
    if (!tag.starts_with(kProduktionscode)) {
        return std::nullopt;
    }
    Minenfaktoren faktoren{};
    for (std::size_t i = 0; i < faktoren.size(); ++i) {
        const auto wert =
            LiesGanzzahl(GetToken(tag, static_cast<int>(i) + 2, ":"), 0, kVollerFaktor);
        if (!wert) {
            return std::nullopt;
        }
        faktoren[i] = static_cast<Byte>(*wert);
    }
    return faktoren;
}

}  // namespace tarvelin
