// Editing of the build list and its texts.
#include "plan/BuildList.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "model/Energy.h"
#include "model/ItemTable.h"
#include "model/Mines.h"
#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

std::string Itemtext(ItemId item, Byte nummer) {
    const ItemRow& zeile = RowOf(item);
    std::string text(zeile.listText);
    return zeile.traits.showsNumber ? text + std::to_string(nummer) : text;
}

std::string Produktionstext(const MineFactors& faktoren) {
    const auto prozent = [&](Resource r) { return std::to_string(10 * faktoren[r]) + "%"; };
    return "M:" + prozent(Resource::Metall) + " K:" + prozent(Resource::Kristall) +
           " D:" + prozent(Resource::Deuterium);
}

/// The list text of the last order.
std::string Listentext(const Auftragsliste& liste) {
    const Auftrag& letzter = liste.Alle().back();
    return letzter.Was == Auftrag::Art::Item ? Itemtext(letzter.Item, liste.ListStufe(letzter.Item))
                                             : Produktionstext(letzter.Faktoren);
}

}  // namespace

std::optional<Message> Bauliste::AddItem(ItemId item, const RunConditions& bedingungen) {
    return HaengeAn(Auftrag::Fuer(item), RowOf(item).ItemCode, bedingungen);
}

std::optional<Message> Bauliste::AddProdaenderungsevent(const MineFactors& faktoren,
                                                        const RunConditions& bedingungen) {
    const Auftrag auftrag = Auftrag::Fuer(faktoren);
    return HaengeAn(auftrag, auftrag.Tag(), bedingungen);
}

bool Bauliste::Replay(std::string_view tag, const RunConditions& bedingungen) {
    const Auftrag auftrag = Auftrag::AusTag(tag);
    return auftrag.Was != Auftrag::Art::Unbekannt && !HaengeAn(auftrag, tag, bedingungen);
}

// The factor text sees the counters with the row done.
std::optional<Message> Bauliste::HaengeAn(const Auftrag& auftrag, std::string_view tag,
                                          const RunConditions& bedingungen) {
    if (m_auftraege.IstVoll()) {
        return ListeVoll();
    }
    m_auftraege.HaengeAn(auftrag);
    const std::string faktor = GetProdfaktorText(m_auftraege, bedingungen);
    m_zeilen.push_back({.Text = std::to_string(m_auftraege.Zahl()),
                        .Tag = std::string(tag),
                        .SubItems1 = Listentext(m_auftraege),
                        .SubItems2 = faktor,
                        .SubItems2Farbe = faktor == "1,00" ? Farbe::Schwarz : Farbe::Rot});
    return std::nullopt;
}

void Bauliste::Undo() {
    if (!m_zeilen.empty()) {
        m_auftraege.NimmLetzten();
        m_zeilen.pop_back();
    }
}

void Bauliste::Clear() {
    *this = Bauliste();
}

std::vector<std::string> Bauliste::Tags() const {
    std::vector<std::string> tags;
    tags.reserve(m_zeilen.size());
    std::ranges::transform(m_zeilen, std::back_inserter(tags), &BaulistenZeile::Tag);
    return tags;
}

void Bauliste::Setze(const std::vector<std::string>& tags, const RunConditions& bedingungen) {
    Clear();
    for (const std::string& tag : tags) {
        static_cast<void>(Replay(tag, bedingungen));
    }
}

Message ListeVoll() {
    return {.text = "Die Bauliste ist voll: mehr als 254 Einträge sind nicht möglich...",
            .title = kBadInputTitle};
}

std::string GetProdfaktorText(const Auftragsliste& liste, const RunConditions& bedingungen) {
    const auto bedarf = [&](Resource r, ItemId mine) {
        return ListEnergieVerbrauch(r, liste.ListStufe(mine), liste.ListFaktor()[r]);
    };
    const Long need = HalfEvenLong(bedarf(Resource::Deuterium, ItemId::DeutMine) +
                                   bedarf(Resource::Kristall, ItemId::KrisMine) +
                                   bedarf(Resource::Metall, ItemId::MetMine));
    const Long supply = HalfEvenLong(
        (SatelliteProduction(liste.ListStufe(ItemId::Solsats), bedingungen.Temperatur) +
         PowerPlantProduction(liste.ListStufe(ItemId::SKW)))
            .ToDouble());
    constexpr int kStellen = 2;
    constexpr double kHundert = 100;
    const double anteil = need == 0 ? 1.0 : static_cast<double>(supply) / need;
    const auto hundertstel = std::min(Rounding::HalfEven(anteil * kHundert), std::int64_t{100});
    const FixedPoint faktor = FixedPoint::FromRaw(hundertstel * (FixedPoint::kUnit / 100));
    return PadDecimals(DecimalText(faktor), kStellen);
}

}  // namespace tarvelin
