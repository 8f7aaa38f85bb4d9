// Levels and rates.
#include "search/SearchTexts.h"

#include "model/ItemTable.h"

namespace tarvelin {

namespace {

/// What `text` makes of each item that one list has more of than the other.
template <class Text>
std::string Gereiht(const OrderList& mehr, const OrderList& weniger, const char* zwischen,
                    Text text) {
    std::string alle;
    for (const ItemRow& zeile : ItemTable()) {
        const int unterschied = mehr.ListStufe(zeile.item) - weniger.ListStufe(zeile.item);
        if (unterschied > 0) {
            alle += (alle.empty() ? "" : zwischen) + text(zeile, std::to_string(unterschied));
        }
    }
    return alle;
}

}  // namespace

std::string Ueberschuss(const OrderList& mehr, const OrderList& weniger) {
    return Gereiht(mehr, weniger, " ", [](const ItemRow& zeile, const std::string& zahl) {
        return std::string(zeile.ItemCode) + zahl;
    });
}

std::string UeberschussInWorten(const OrderList& mehr, const OrderList& weniger) {
    return Gereiht(mehr, weniger, ", ", [](const ItemRow& zeile, const std::string& zahl) {
        return zahl + " x " + std::string(zeile.name);
    });
}

std::string Anzahltext(std::size_t zahl, const char* einzahl, const char* mehrzahl) {
    return std::to_string(zahl) + " " + (zahl == 1 ? einzahl : mehrzahl);
}

std::string ProStundeText(const GameState& stand) {
    return "Metall " + std::to_string(stand.ProStunde[Resource::Metall].WholePart()) +
           ", Kristall " + std::to_string(stand.ProStunde[Resource::Kristall].WholePart()) +
           ", Deuterium " + std::to_string(stand.ProStunde[Resource::Deuterium].WholePart());
}

}  // namespace tarvelin
