// The run of orders through simulated time.
#pragma once

#include <span>

#include "model/GameState.h"
#include "model/RunConditions.h"
#include "plan/Order.h"
#include "simulation/EventTable.h"
#include "simulation/RunObserver.h"

namespace tarvelin {

/// A run as a value. It goes event by event: time jumps to the earliest row of the timetable, the
/// order there starts or finishes. A copy is a run of its own, which goes on from there. Between
/// two steps no order waits that the list has behind those that were given; it enters with the
/// next.
///
/// Orders and conditions must outlive it; at most 254 orders.
class Simulation {
  public:
    Simulation(std::span<const Order> auftraege, const RunConditions& bedingungen);

    /// Goes on over other orders, of which the first `Eingereiht()` are those of the former.
    void WechsleAuftraege(std::span<const Order> auftraege) { m_auftraege = auftraege; }

    /// How many orders have entered the timetable: the others don't matter yet.
    [[nodiscard]] std::size_t Eingereiht() const { return m_naechste; }

    /// Whether an order that has entered is still waiting for its start.
    [[nodiscard]] bool WartetEiner() const { return !m_tabelle.NoStartPending(); }

    /// Whether the run is over: each order goes through two steps, a start and a finish.
    [[nodiscard]] bool IstFertig() const { return m_schritte >= 2 * m_auftraege.size(); }

    /// Carries out the earliest event; the run isn't over.
    void Schritt(Laufbeobachter& beobachter);

    /// Goes to the end.
    void Laufe(Laufbeobachter& beobachter);

    /// The state behind the last step.
    [[nodiscard]] const GameState& Stand() const { return m_stand; }

  private:
    void ReiheEin();
    void TerminiereWartende(Laufbeobachter& beobachter);
    [[nodiscard]] bool KommtErstNachEinemFinish(const ItemRow& zeile, SimTime frei) const;
    Delay TerminiereItem(const ItemRow& zeile);
    void Starte(std::size_t zeile, Laufbeobachter& beobachter);
    void StarteItem(std::size_t zeile, Laufbeobachter& beobachter);
    void StarteProduktion(std::size_t zeile, Laufbeobachter& beobachter);
    void Beende(const Order& order, Laufbeobachter& beobachter);

    std::span<const Order> m_auftraege;
    const RunConditions* m_bedingungen;
    GameState m_stand;
    EventTabelle m_tabelle;
    /// The next order that has not yet entered the timetable.
    std::size_t m_naechste = 0;
    std::size_t m_schritte = 0;
    /// When the wait of the waiting order ends; an unknown order keeps that of the one before it.
    SimTime m_bereitAb;
    /// What the waiting order last waited for.
    Delay m_aufenthalt;
    /// Whether a gate was shut when it was last timed.
    bool m_torZu = false;
    /// The earliest moment from which on only a sleep window held it back.
    SimTime m_wach;
};

}  // namespace tarvelin
