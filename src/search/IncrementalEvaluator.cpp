// Runs from the middle.
#include "search/IncrementalEvaluator.h"

#include <limits>

#include "plan/OrderList.h"

namespace tarvelin {

/// Looks at each start: whether it may be, and what it adds to the sittings.
class Probelauf::Waechter final : public Laufbeobachter {
  public:
    Waechter(const Suchaufgabe& aufgabe, const Sitzungsstand& sitzungen)
        : Sitzungen(sitzungen), m_aufgabe(aufgabe) {}

    void Start(const Startereignis& ereignis) override {
        Starts = ereignis.Zeile + 1;
        const bool zuFrueh = ereignis.Zeile >= m_aufgabe.Kopf && ereignis.Start < m_aufgabe.Ab;
        Verfehlt = Verfehlt || ereignis.TorZu || zuFrueh;
        Sitzungen.Gezaehlt.Nimm(ereignis.Start);
        if (ereignis.Grund.cause == DelayCause::Sleep) {
            Sitzungen.Wach = ereignis.Wach;
        }
    }
    void Schulden(const GameState& /*stand*/) override { Verfehlt = true; }

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
    lauf.WechsleAuftraege(orders);
    Waechter waechter(*m_aufgabe, halt.Sitzungen);
    while (!lauf.IstFertig()) {
        lauf.Schritt(waechter);
        if (waechter.Verfehlt || lauf.Stand().secsgone.Seconds() > grenze) {
            return std::nullopt;
        }
        if (waechter.Starts > m_gestartet) {
            m_gestartet = waechter.Starts;
            Halt& neuer = m_halte[m_gestartet][1 - m_gueltig[m_gestartet]];
            neuer.Lauf = lauf;
            neuer.Sitzungen = waechter.Sitzungen;
        }
    }
    if (lauf.Stand().secsgone == SimTime(std::numeric_limits<Long>::max())) {
        return std::nullopt;
    }
    return Wertung{.Dauer = lauf.Stand().secsgone.Seconds(),
                   .Sitzungen = waechter.Sitzungen.Gezaehlt.Zahl,
                   .Wach = waechter.Sitzungen.Wach};
}

void Probelauf::Uebernimm() {
    for (std::size_t zeile = m_gleich + 1; zeile <= m_gestartet; ++zeile) {
        m_gueltig[zeile] ^= 1U;
    }
}

}  // namespace tarvelin
