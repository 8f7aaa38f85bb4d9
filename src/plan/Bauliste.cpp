// Editing of the build list and its factor texts.
#include "plan/Bauliste.h"

#include <algorithm>
#include <cstdint>

#include "plan/ItemCode.h"
#include "util/Nuetzliches.h"
#include "util/Zahlentext.h"

namespace tarvelin {

namespace {

constexpr Minenfaktoren kVolleFaktoren{kVollerFaktor, kVollerFaktor, kVollerFaktor};

Meldung ListeVoll() {
    return {.Text = "Die Bauliste ist voll: mehr als 254 Einträge sind nicht möglich...",
            .Titel = kAusnahmefehler};
}

std::string Listentext(ItemId item, int nummer) {
    std::string text(ZeileVon(item).Listentext);
    return item == ItemId::klSchK ? text : text + std::to_string(nummer);
}

std::string ProduktionsTag(const Minenfaktoren& faktoren) {
    std::string tag(kProduktionscode);
    for (const Byte faktor : faktoren) {
        tag += ":" + std::to_string(faktor);
    }
    return tag;
}

std::string ProduktionsListentext(const Minenfaktoren& faktoren) {
    const auto prozent = [&](std::size_t i) { return std::to_string(10 * faktoren[i]) + "%"; };
    return "M:" + prozent(0) + " K:" + prozent(1) + " D:" + prozent(2);
}

}  // namespace

std::optional<Meldung> Bauliste::DragDrop(std::string_view Source, const Startplanet& planet) {
    const auto item = ItemVonBild(Source);
    if (!item) {
        return Meldung{.Text = "KA", .Titel = "", .Symbol = Meldungssymbol::Ohne};
    }
    if (IstVoll()) {
        return ListeVoll();
    }
    const int nummer = ++m_listStufe[*item];
    BaulistenZeile& zeile = HaengeZeileAn(ZeileVon(*item).Code);
    zeile.SubItems1 = Listentext(*item, nummer);
    SchliesseZeileAb(zeile, planet);
    return std::nullopt;
}

std::optional<Meldung> Bauliste::AddProdaenderungsevent(const Minenfaktoren& faktoren,
                                                        const Startplanet& planet) {
    if (IstVoll()) {
        return ListeVoll();
    }
    ReplayProduktion(ProduktionsTag(faktoren), faktoren, planet);
    return std::nullopt;
}

void Bauliste::ReplayProduktion(std::string_view tag, const Minenfaktoren& faktoren,
                                const Startplanet& planet) {
    m_listFaktor = faktoren;
    BaulistenZeile& zeile = HaengeZeileAn(tag);
    zeile.SubItems1 = ProduktionsListentext(faktoren);
    SchliesseZeileAb(zeile, planet);
}

BaulistenZeile& Bauliste::HaengeZeileAn(std::string_view tag) {
    BaulistenZeile& zeile = m_zeilen.emplace_back();
    zeile.Tag = tag;
    zeile.Order = Auftrag::AusTag(tag);
    return zeile;
}

/// The factor text, which sees the counters with the row done, then number and colour. The rows
/// above have theirs and never change.
void Bauliste::SchliesseZeileAb(BaulistenZeile& zeile, const Startplanet& planet) {
    zeile.SubItems2 = GetProdfaktorText(planet);
    zeile.Text = std::to_string(m_zeilen.size());
    zeile.SubItems2Farbe = zeile.SubItems2 == "1,00" ? Farbe::Schwarz : Farbe::Rot;
}

void Bauliste::Undo() {
    if (m_zeilen.empty()) {
        return;
    }
    const Auftrag letzter = m_zeilen.back().Order;
    m_zeilen.pop_back();
    if (letzter.Was == Auftrag::Art::Item) {
        --m_listStufe[letzter.Item];
    } else if (letzter.Was == Auftrag::Art::Produktion) {
        const auto zeile = std::find_if(
            m_zeilen.crbegin(), m_zeilen.crend(),
            [](const BaulistenZeile& z) { return z.Order.Was == Auftrag::Art::Produktion; });
        m_listFaktor = zeile == m_zeilen.crend() ? kVolleFaktoren : zeile->Order.Faktoren;
    }
}

void Bauliste::Clear() {
    *this = Bauliste();
}

std::string Bauliste::GetProdfaktorText(const Startplanet& planet) const {
    const auto bedarf = [&](const cMine& mine, ItemId item, std::size_t i) {
        return mine.GetEnergieVerbrauch(m_listStufe[item],
                                        static_cast<float>(m_listFaktor[i]) / kVollerFaktor);
    };
    const Long need = HalfEvenLong(bedarf(planet.DeutMine, ItemId::DeutMine, 2) +
                                   bedarf(planet.KrisMine, ItemId::KrisMine, 1) +
                                   bedarf(planet.MetMine, ItemId::MetMine, 0));
    const Long supply = HalfEvenLong((planet.Solsats.GetProduktion(m_listStufe[ItemId::Solsats]) +
                                      planet.SKW.GetProduktion(m_listStufe[ItemId::SKW]))
                                         .AlsDouble());
    constexpr int kStellen = 2;
    constexpr double kHundert = 100;
    const double anteil = need == 0 ? 1.0 : static_cast<double>(supply) / need;
    const auto hundertstel = std::min(Rundung::half_even(anteil * kHundert), std::int64_t{100});
    const Festkomma faktor = Festkomma::AusRohwert(hundertstel * (Festkomma::kEinheit / 100));
    return PadDecimals(Dezimaltext(faktor), kStellen);
}

}  // namespace tarvelin
