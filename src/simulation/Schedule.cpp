// Texts of the table of build times.
#include "simulation/Schedule.h"

#include "model/ItemTable.h"

namespace tarvelin {

std::string Bauzeit::theText() const {
    if (Order.kind == Order::Kind::Production) {
        const auto prozent = [this](Resource r) { return std::to_string(Order.factors[r] * 10); };
        return prozent(Resource::Metall) + "% " + prozent(Resource::Kristall) + "% " +
               prozent(Resource::Deuterium) + "%";
    }
    const ItemRow& zeile = RowOf(Order.item);
    std::string text(zeile.reportText);
    return zeile.traits.showsNumber ? text + std::to_string(Nummer) : text;
}

std::string Bauzeit::VerzoegerungsGrund() const {
    const bool mitGrund = Order.kind == Order::Kind::Item && RowOf(Order.item).traits.showsReason;
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
    zeile.Start = m_bedingungen.WallClock(ereignis.Start);
    zeile.Finish = m_bedingungen.WallClock(ereignis.Finish);
    zeile.Mangel.Assign(ereignis.Mangel);
    zeile.Grund = ereignis.Grund;
}

}  // namespace tarvelin
