// Levels and rates.
#include "search/Suchtexte.h"

#include "model/Itemtabelle.h"

namespace tarvelin {

std::string Ueberschuss(const Auftragsliste& mehr, const Auftragsliste& weniger) {
    std::string text;
    for (const Itemzeile& zeile : Itemtabelle()) {
        const int unterschied = mehr.ListStufe(zeile.Item) - weniger.ListStufe(zeile.Item);
        if (unterschied > 0) {
            text +=
                (text.empty() ? "" : " ") + std::string(zeile.Code) + std::to_string(unterschied);
        }
    }
    return text;
}

std::string ProStundeText(const Spielstand& stand) {
    return "Metall " + std::to_string(stand.ProStunde[Rohstoff::Metall].GanzerTeil()) +
           ", Kristall " + std::to_string(stand.ProStunde[Rohstoff::Kristall].GanzerTeil()) +
           ", Deuterium " + std::to_string(stand.ProStunde[Rohstoff::Deuterium].GanzerTeil());
}

}  // namespace tarvelin
