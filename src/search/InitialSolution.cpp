// Row by row, the earliest start.
#include "search/InitialSolution.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "plan/Rules.h"
#include "search/IncrementalEvaluator.h"
#include "search/Neighborhood.h"

namespace tarvelin {

namespace {

constexpr Long kOhneGrenze = std::numeric_limits<Long>::max();

/// Which orders come first, before the soonest.
enum class Vorzug : std::uint8_t {
    Keiner,
    /// Those that cost deuterium: a production row may shut its mine later on.
    Deuterium,
};

bool KostetDeuterium(const Order& order) {
    return order.kind == Order::Kind::Item && RowOf(order.item).baseCost[Resource::Deuterium] > 0;
}

/// The place of the order in `uebrige` that ends the list soonest if it comes next.
std::optional<std::size_t> Naechster(Probelauf& probe, std::vector<Order>& liste,
                                     const std::vector<Order>& uebrige, const PerItem<Byte>& stufen,
                                     Vorzug vorzug) {
    std::optional<std::size_t> bester;
    std::pair<bool, Long> wert{true, kOhneGrenze};
    PerItem<bool> gefragt{};
    for (std::size_t i = 0; i < uebrige.size(); ++i) {
        const Order& order = uebrige[i];
        const bool item = order.kind == Order::Kind::Item;
        if (item && (gefragt[order.item] || !IsAllowed(order.item, stufen))) {
            continue;
        }
        gefragt[order.item] = gefragt[order.item] || item;
        liste.push_back(order);
        const auto wertung = probe.Spiele(liste, liste.size() - 1, kOhneGrenze);
        liste.pop_back();
        const bool hinten = vorzug == Vorzug::Deuterium && !KostetDeuterium(order);
        if (wertung && std::pair(hinten, wertung->Dauer) < wert) {
            wert = {hinten, wertung->Dauer};
            bester = i;
        }
    }
    return bester;
}

std::optional<std::vector<Order>> GierigeListe(const Suchaufgabe& aufgabe, Vorzug vorzug) {
    const std::vector<Order>& vorlage = aufgabe.Orders;
    const auto fest = [&](std::size_t i) { return i < aufgabe.Kopf || aufgabe.Fest[i]; };
    std::vector<Order> uebrige;
    for (std::size_t i = 0; i < vorlage.size(); ++i) {
        if (!fest(i)) {
            uebrige.push_back(vorlage[i]);
        }
    }
    Probelauf probe(aufgabe);
    std::vector<Order> liste;
    PerItem<Byte> stufen{};
    while (liste.size() < vorlage.size()) {
        const std::size_t zeile = liste.size();
        if (fest(zeile)) {
            liste.push_back(vorlage[zeile]);
        } else {
            const auto naechster = Naechster(probe, liste, uebrige, stufen, vorzug);
            if (!naechster) {
                return std::nullopt;
            }
            liste.push_back(uebrige[*naechster]);
            uebrige.erase(uebrige.begin() + static_cast<std::ptrdiff_t>(*naechster));
        }
        const Order& order = liste.back();
        if (order.kind == Order::Kind::Item) {
            if (!IsAllowed(order.item, stufen)) {
                return std::nullopt;
            }
            ++stufen[order.item];
        }
        if (!probe.Spiele(liste, zeile, kOhneGrenze)) {
            return std::nullopt;
        }
        probe.Uebernimm();
    }
    return liste;
}

/// Moves that let no fewer orders start, until all do.
std::optional<std::vector<Order>> ReparierteListe(const Suchaufgabe& aufgabe,
                                                  const std::atomic<bool>& halt) {
    constexpr int kVersuche = 40'000;
    Zufall zufall(1);
    Zuege zuege(aufgabe, aufgabe.Orders, aufgabe.Fest);
    Probelauf probe(aufgabe);
    bool endet = probe.Spiele(zuege.Liste(), 0, kOhneGrenze).has_value();
    probe.Uebernimm();
    std::size_t gestartet = probe.Gestartet();
    for (int i = 0; i < kVersuche && !endet && !halt; ++i) {
        const auto von = zuege.Ziehe(zufall);
        // What comes behind the order that fails isn't played.
        if (!von || *von >= gestartet) {
            continue;
        }
        endet = probe.Spiele(zuege.Nachbar(), *von, kOhneGrenze).has_value();
        if (endet || probe.Gestartet() >= gestartet) {
            gestartet = probe.Gestartet();
            zuege.Uebernimm();
            probe.Uebernimm();
        }
    }
    return endet ? std::optional(zuege.Liste()) : std::nullopt;
}

}  // namespace

std::optional<std::vector<Order>> EndendeListe(const Suchaufgabe& aufgabe,
                                               const std::atomic<bool>& halt) {
    for (const Vorzug vorzug : {Vorzug::Keiner, Vorzug::Deuterium}) {
        if (auto liste = GierigeListe(aufgabe, vorzug)) {
            return liste;
        }
    }
    return aufgabe.Was == Suchaufgabe::Art::Reihenfolge ? ReparierteListe(aufgabe, halt)
                                                        : std::nullopt;
}

}  // namespace tarvelin
