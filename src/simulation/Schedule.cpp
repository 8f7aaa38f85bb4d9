// Texts of the table of build times.
#include "simulation/Schedule.h"

#include "model/ItemTable.h"

namespace tarvelin {

std::string Bauzeit::theText() const {
    if (Order.Was == Auftrag::Art::Produktion) {
        const auto prozent = [this](Rohstoff r) { return std::to_string(Order.Faktoren[r] * 10); };
        return prozent(Rohstoff::Metall) + "% " + prozent(Rohstoff::Kristall) + "% " +
               prozent(Rohstoff::Deuterium) + "%";
    }
    const Itemzeile& zeile = ZeileVon(Order.Item);
    std::string text(zeile.Zeitentext);
    return zeile.Besonders.MitNummer ? text + std::to_string(Nummer) : text;
}

std::string Bauzeit::VerzoegerungsGrund() const {
    const bool mitGrund =
        Order.Was == Auftrag::Art::Item && ZeileVon(Order.Item).Besonders.MitGrund;
    return mitGrund ? Mangel.Text() : "";
}

std::string Bauzeit::Tag() const {
    const std::string tag = std::string(WeekdayLong(Start)) + " " + DateTimeText(Start);
    const std::string grund = VerzoegerungsGrund();
    return grund.empty() ? tag : tag + " | " + grund;
}

void Bauzeitenschreiber::Start(const Startereignis& ereignis) {
    Bauzeit& zeile = m_zeilen.emplace_back();
    zeile.Order = ereignis.Order;
    zeile.Nummer = ereignis.Nummer;
    zeile.Start = m_bedingungen.Uhrzeit(ereignis.Start);
    zeile.Finish = m_bedingungen.Uhrzeit(ereignis.Finish);
    zeile.Mangel.Uebernimm(ereignis.Mangel);
    zeile.Grund = ereignis.Grund;
}

}  // namespace tarvelin
