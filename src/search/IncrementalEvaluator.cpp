// Runs from the middle.
#include "search/IncrementalEvaluator.h"

#include <limits>

#include "plan/OrderList.h"

namespace tarvelin {

/// Looks at each start: whether it may be, and what it adds to the sittings.
class Probelauf::Waechter final : public RunObserver {
  public:
    Waechter(const Suchaufgabe& aufgabe, const Sitzungsstand& sitzungen)
        : Sitzungen(sitzungen), m_aufgabe(aufgabe) {}

    void OnStart(const StartEvent& ereignis) override {
        Starts = ereignis.row + 1;
        const bool zuFrueh = ereignis.row >= m_aufgabe.Kopf && ereignis.start < m_aufgabe.Ab;
        Verfehlt = Verfehlt || ereignis.gateClosed || zuFrueh;
        Sitzungen.Gezaehlt.Add(ereignis.start);
        if (ereignis.delay.cause == DelayCause::Sleep) {
            Sitzungen.Wach = ereignis.sleepFreeStart;
        }
    }
    void OnNegativeStock(const GameState& /*stand*/) override { Verfehlt = true; }

    Sitzungsstand Sitzungen;
    /// Orders that have started.
    std::size_t Starts = 0;
    /// An order has started that shouldn't have.
    bool Verfehlt = false;

  private:
    const Suchaufgabe& m_aufgabe;
};

Probelauf::Probelauf(const Suchaufgabe& aufgabe)
    : m_aufgabe(&aufgabe),
      m_halte(OrderList::kMaxSize + 1, {Halt{Simulation({}, aufgabe.Bedingungen), {}},
                                        Halt{Simulation({}, aufgabe.Bedingungen), {}}}),
      m_gueltig(OrderList::kMaxSize + 1) {}

std::optional<Wertung> Probelauf::Spiele(std::span<const Order> orders, std::size_t gleich,
                                         Long grenze) {
    m_gleich = gleich;
    m_gestartet = gleich;
    const Halt& halt = m_halte[gleich][m_gueltig[gleich]];
    Simulation lauf = halt.Lauf;
    lauf.ReplaceOrders(orders);
    Waechter waechter(*m_aufgabe, halt.Sitzungen);
    while (!lauf.IsFinished()) {
        lauf.Step(waechter);
        if (waechter.Verfehlt || lauf.State().secsgone.Seconds() > grenze) {
            return std::nullopt;
        }
        if (waechter.Starts > m_gestartet) {
            m_gestartet = waechter.Starts;
            Halt& neuer = m_halte[m_gestartet][1 - m_gueltig[m_gestartet]];
            neuer.Lauf = lauf;
            neuer.Sitzungen = waechter.Sitzungen;
        }
    }
    if (lauf.State().secsgone == SimTime(std::numeric_limits<Long>::max())) {
        return std::nullopt;
    }
    return Wertung{.Dauer = lauf.State().secsgone.Seconds(),
                   .Sitzungen = waechter.Sitzungen.Gezaehlt.count,
                   .Wach = waechter.Sitzungen.Wach};
}

void Probelauf::Uebernimm() {
    for (std::size_t zeile = m_gleich + 1; zeile <= m_gestartet; ++zeile) {
        m_gueltig[zeile] ^= 1U;
    }
}

}  // namespace tarvelin
