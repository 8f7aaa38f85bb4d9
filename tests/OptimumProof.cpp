// All orders of a small plan, but for those that can't be the best.
#include "OptimumProof.h"

#include <algorithm>
#include <limits>
#include <random>

#include "model/Cost.h"
#include "plan/OrderList.h"
#include "plan/Rules.h"
#include "simulation/Simulation.h"

namespace tarvelin {

namespace {

/// Whether an order started that can't be paid, or whose gate was shut.
class Schiedsrichter final : public RunObserver {
  public:
    void OnStart(const StartEvent& ereignis) override {
        Gestartet = ereignis.row + 1;
        Gut = Gut && !ereignis.gateClosed;
    }
    void OnNegativeStock(const GameState& /*stand*/) override { Gut = false; }

    std::size_t Gestartet = 0;
    bool Gut = true;
};

class Beweis {
  public:
    explicit Beweis(const SearchTask& aufgabe)
        : m_bedingungen(aufgabe.conditions),
          m_uebrig(aufgabe.orders),
          m_spaeter(Simulation({}, aufgabe.conditions).State()) {
        m_spaeter.Stufe = FinalLevels(aufgabe.orders);
    }

    Long Fuehre() {
        Vertiefe(Simulation({}, m_bedingungen));
        return m_beste;
    }

  private:
    void Vertiefe(const Simulation& lauf) {
        if (m_uebrig.empty()) {
            Spiele(lauf, m_liste.size() + 1);
            return;
        }
        if (FruehestesEnde(lauf.State()) >= m_beste) {
            return;
        }
        PerItem<bool> versucht{};
        for (std::size_t i = 0; i < m_uebrig.size(); ++i) {
            const Order order = m_uebrig[i];
            if (versucht[order.item] || !IsAllowed(order.item, m_stufen)) {
                continue;
            }
            // Equal orders are one.
            versucht[order.item] = true;
            m_uebrig.erase(m_uebrig.begin() + static_cast<std::ptrdiff_t>(i));
            m_liste.push_back(order);
            ++m_stufen[order.item];
            if (const auto weiter = Spiele(lauf, m_liste.size())) {
                Vertiefe(*weiter);
            }
            --m_stufen[order.item];
            m_liste.pop_back();
            m_uebrig.insert(m_uebrig.begin() + static_cast<std::ptrdiff_t>(i), order);
        }
    }

    /// Goes on until so many orders have started, or to the end. Nothing if one can't.
    std::optional<Simulation> Spiele(Simulation lauf, std::size_t starts) {
        lauf.ReplaceOrders(m_liste);
        Schiedsrichter schiedsrichter;
        while (!lauf.IsFinished() && schiedsrichter.Gestartet < starts) {
            lauf.Step(schiedsrichter);
            if (!schiedsrichter.Gut) {
                return std::nullopt;
            }
        }
        if (lauf.IsFinished()) {
            m_beste = std::min(m_beste, lauf.State().secsgone.Seconds());
        }
        return lauf;
    }

    /// What each queue has still to do, one order after the other and each as quick as it gets with
    /// all facilities.
    [[nodiscard]] Long FruehestesEnde(const GameState& stand) const {
        PerQueue<double> ende{};
        PerItem<Byte> stufen = m_stufen;
        for (const Order& order : m_uebrig) {
            const ItemRow& zeile = RowOf(order.item);
            const Cost& preis = CostOf(order.item, stufen[order.item]++);
            ende[order.queue] += zeile.upgradeTime(preis, m_spaeter, m_bedingungen);
        }
        double spaetestes = 0;
        for (const Order& order : m_uebrig) {
            // Its queue's finish, before the buffer that keeps it busy.
            const auto frei = static_cast<double>(stand.FertigZeit[order.queue].Seconds()) - 1 -
                              static_cast<double>(m_bedingungen.KlickPuffer);
            spaetestes = std::max(spaetestes, ende[order.queue] + std::max(0.0, frei));
        }
        // Durations are rounded.
        return static_cast<Long>(spaetestes) - static_cast<Long>(m_uebrig.size());
    }

    const RunConditions& m_bedingungen;
    std::vector<Order> m_uebrig;
    std::vector<Order> m_liste;
    PerItem<Byte> m_stufen{};
    /// With all levels that the plan will ever have.
    GameState m_spaeter;
    Long m_beste = std::numeric_limits<Long>::max();
};

}  // namespace

SearchTask Kleinplan(unsigned saat) {
    constexpr std::array<ItemId, 12> kAnfang{ItemId::MetMine,  ItemId::MetMine,  ItemId::KrisMine,
                                             ItemId::KrisMine, ItemId::DeutMine, ItemId::SKW,
                                             ItemId::SKW,      ItemId::Robo,     ItemId::Werft,
                                             ItemId::Folab,    ItemId::Solsats,  ItemId::ENTech};
    std::mt19937 quelle(saat);
    const auto bis = [&quelle](unsigned hoechster) {
        return static_cast<Long>(quelle() % (hoechster + 1));
    };
    SearchTask aufgabe;
    RunConditions& welt = aufgabe.conditions;
    welt.Speedfaktor = 1 + bis(1);
    welt.Temperatur = static_cast<Integer>(bis(160) - 60);
    welt.KlickPuffer = bis(1) * bis(600);
    welt.StartDate = *ParseDateTime("18.11.2026 12:30:00");
    constexpr Long kStunde = 3600;
    constexpr Long kNaechte = 4;
    const Long schlaf = bis(1) * (6 + bis(3)) * kStunde;
    for (Long nacht = 0; schlaf > 0 && nacht < kNaechte; ++nacht) {
        const DateTime abend = welt.StartDate + (9 + 24 * nacht) * kStunde;
        welt.Schlafzeiten.emplace_back(abend, abend + schlaf);
    }
    OrderList liste;
    for (Long zahl = 8 + bis(2); static_cast<Long>(liste.Size()) < zahl;) {
        const ItemId item = bis(3) == 0
                                ? static_cast<ItemId>(bis(kNumItems - 1))
                                : kAnfang[static_cast<std::size_t>(bis(kAnfang.size() - 1))];
        if (!Refusal(item, liste)) {
            liste.Append(Order::Of(item));
        }
    }
    aufgabe.orders.assign(liste.All().begin(), liste.All().end());
    aufgabe.pinned.assign(aufgabe.orders.size(), false);
    return aufgabe;
}

std::optional<Long> BewieseneDauer(const SearchTask& aufgabe) {
    const Long dauer = Beweis(aufgabe).Fuehre();
    return dauer == std::numeric_limits<Long>::max() ? std::nullopt : std::optional(dauer);
}

}  // namespace tarvelin
