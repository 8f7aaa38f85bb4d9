// Row by row, the earliest start.
#include "search/Anfangsliste.h"

#include <algorithm>
#include <limits>

#include "plan/Regeln.h"
#include "search/Probelauf.h"

namespace tarvelin {

namespace {

constexpr Long kOhneGrenze = std::numeric_limits<Long>::max();

/// The place of the order in `uebrige` that ends the list soonest if it comes next.
std::optional<std::size_t> Naechster(Probelauf& probe, std::vector<Auftrag>& liste,
                                     const std::vector<Auftrag>& uebrige,
                                     const JeItem<Byte>& stufen) {
    std::optional<std::size_t> bester;
    Long dauer = kOhneGrenze;
    JeItem<bool> gefragt{};
    for (std::size_t i = 0; i < uebrige.size(); ++i) {
        const Auftrag& order = uebrige[i];
        const bool item = order.Was == Auftrag::Art::Item;
        if (item && (gefragt[order.Item] || !IstErlaubt(order.Item, stufen))) {
            continue;
        }
        gefragt[order.Item] = gefragt[order.Item] || item;
        liste.push_back(order);
        const auto wertung = probe.Spiele(liste, liste.size() - 1, kOhneGrenze);
        liste.pop_back();
        if (wertung && wertung->Dauer < dauer) {
            dauer = wertung->Dauer;
            bester = i;
        }
    }
    return bester;
}

}  // namespace

std::optional<std::vector<Auftrag>> GierigeListe(const Suchaufgabe& aufgabe) {
    const std::vector<Auftrag>& vorlage = aufgabe.Orders;
    const auto fest = [&](std::size_t i) { return i < aufgabe.Kopf || aufgabe.Fest[i]; };
    std::vector<Auftrag> uebrige;
    for (std::size_t i = 0; i < vorlage.size(); ++i) {
        if (!fest(i)) {
            uebrige.push_back(vorlage[i]);
        }
    }
    Probelauf probe(aufgabe);
    std::vector<Auftrag> liste;
    JeItem<Byte> stufen{};
    while (liste.size() < vorlage.size()) {
        const std::size_t zeile = liste.size();
        if (fest(zeile)) {
            liste.push_back(vorlage[zeile]);
        } else {
            const auto naechster = Naechster(probe, liste, uebrige, stufen);
            if (!naechster) {
                return std::nullopt;
            }
            liste.push_back(uebrige[*naechster]);
            uebrige.erase(uebrige.begin() + static_cast<std::ptrdiff_t>(*naechster));
        }
        const Auftrag& order = liste.back();
        if (order.Was == Auftrag::Art::Item) {
            if (!IstErlaubt(order.Item, stufen)) {
                return std::nullopt;
            }
            ++stufen[order.Item];
        }
        if (!probe.Spiele(liste, zeile, kOhneGrenze)) {
            return std::nullopt;
        }
        probe.Uebernimm();
    }
    return liste;
}

}  // namespace tarvelin
