// The walk from event to event.
#include "simulation/Simulation.h"

#include <algorithm>
#include <limits>

#include "model/Cost.h"
#include "model/ItemTable.h"
#include "model/Transitions.h"

namespace tarvelin {

namespace {

constexpr SimTime kNie(std::numeric_limits<Long>::max());

}  // namespace

Simulation::Simulation(std::span<const Order> auftraege, const RunConditions& bedingungen)
    : m_auftraege(auftraege), m_bedingungen(&bedingungen), m_stand(InitialState(bedingungen)) {}

void Simulation::Laufe(Laufbeobachter& beobachter) {
    while (!IstFertig()) {
        Schritt(beobachter);
    }
}

void Simulation::Schritt(Laufbeobachter& beobachter) {
    ReiheEin();
    // The first order is never timed: it starts at moment 0, whatever stocks and gates say.
    if (m_schritte > 0 && !m_tabelle.NoStartPending()) {
        TerminiereWartende(beobachter);
    }
    ++m_schritte;
    if (m_tabelle.IstLeer()) {
        // Only orders with unknown codes leave a step without an event.
        beobachter.Piepton();
        return;
    }
    const EventTabelle::Zeile erste = m_tabelle.NimmErste();
    // Negative where an order's click buffer has carried the clock past this row.
    const Long differenz = erste.Zeit - m_stand.secsgone;
    if (erste.IstStart) {
        VergeheZeit(LongSum(differenz, m_bedingungen->KlickPuffer), m_stand);
        Starte(erste.Order, beobachter);
    } else {
        VergeheZeit(differenz, m_stand);
        Beende(m_auftraege[erste.Order], beobachter);
    }
    EnergieBilanz(m_stand, *m_bedingungen);
    beobachter.NachSchritt(m_stand);
}

/// Only one order at a time waits, in the order of the list.
void Simulation::ReiheEin() {
    if (m_tabelle.NoStartPending() && m_naechste < m_auftraege.size()) {
        m_tabelle.SetStart(m_naechste++);
        m_aufenthalt = {};
        m_torZu = false;
        m_wach = kNie;
    }
}

/// Times the waiting order from the state as it stands. An estimate made earlier counts for
/// nothing.
void Simulation::TerminiereWartende(Laufbeobachter& beobachter) {
    const Order& order = m_auftraege[m_tabelle.Wartender()];
    const SimTime frei = m_stand.FertigZeit[order.queue];
    Delay grund;
    switch (order.kind) {
        case Order::Kind::Item:
            if (KommtErstNachEinemFinish(RowOf(order.item), frei)) {
                m_tabelle.SetStartzeit(frei);
                return;
            }
            grund = TerminiereItem(RowOf(order.item));
            break;
        case Order::Kind::Production:
            m_bereitAb = m_stand.secsgone;
            break;
        case Order::Kind::Unknown:
            beobachter.Unbekannt(Unbekanntes::Wartezeit);
            break;
    }
    if (frei > m_bereitAb) {
        grund = {.cause = DelayCause::Queue, .queue = order.queue};
    }
    const SimTime start = std::max(m_bereitAb, frei);
    m_tabelle.SetStartzeit(start);
    if (start > m_stand.secsgone) {
        m_aufenthalt = grund;
        if (grund.cause == DelayCause::Resource) {
            m_aufenthalt.shortage.Assign(m_stand.VerzoegerungsGrund[order.item]);
        }
    }
}

/// Whether the order's queue is at work beyond the next finish. Then the order is timed again
/// before it can start, and what it waits for by now is forgotten; but not where a gate could have
/// shut until then, as nobody asks for the stocks behind a shut one.
bool Simulation::KommtErstNachEinemFinish(const ItemRow& zeile, SimTime frei) const {
    return m_tabelle.HatFinishVor(frei) && zeile.traits.deuteriumGate == DeuteriumGate::PlantOrMine;
}

Delay Simulation::TerminiereItem(const ItemRow& zeile) {
    const Wait warten = GetTimeUntilUpgradeIsPossible(zeile, m_stand, *m_bedingungen);
    m_bereitAb = m_stand.secsgone + warten.seconds;
    m_torZu = warten.GateClosed();
    if (warten.delay.cause == DelayCause::Sleep) {
        m_wach = std::min(m_wach, m_stand.secsgone + warten.sleepFreeSeconds);
    }
    if (!m_torZu) {
        m_stand.VerzoegerungsGrund[zeile.item].Assign(warten.shortage);
    }
    return warten.delay;
}

void Simulation::Starte(std::size_t zeile, Laufbeobachter& beobachter) {
    switch (m_auftraege[zeile].kind) {
        case Order::Kind::Item:
            StarteItem(zeile, beobachter);
            break;
        case Order::Kind::Production:
            StarteProduktion(zeile, beobachter);
            break;
        case Order::Kind::Unknown:
            beobachter.Unbekannt(Unbekanntes::Start);
            break;
    }
    // A first order that costs more than the start stocks, or one without any source of deuterium,
    // starts all the same. It is told again at each start until the stocks have recovered.
    if (std::ranges::min(m_stand.stock) < FixedPoint()) {
        beobachter.Schulden(m_stand);
    }
}

// The click buffer counts twice: before the start, and behind the finish until the queue falls
// free.
void Simulation::StarteItem(std::size_t zeile, Laufbeobachter& beobachter) {
    const Order& order = m_auftraege[zeile];
    const ItemRow& item = RowOf(order.item);
    const Byte stufe = m_stand.Stufe[order.item];
    UpgradeStart(item, m_stand);
    const double fertig = m_stand.secsgone.Seconds() +
                          item.upgradeTime(CostOf(order.item, stufe), m_stand, *m_bedingungen);
    const SimTime finish(HalfEvenLong(fertig));
    m_tabelle.SetFinish(finish, zeile);
    m_stand.FertigZeit[order.queue] =
        SimTime(HalfEvenLong(fertig + 1 + m_bedingungen->KlickPuffer));
    Startereignis ereignis{.Zeile = zeile,
                           .Order = order,
                           .Nummer = Saturate<Byte>(stufe + 1),
                           .Start = m_stand.secsgone,
                           .Finish = finish,
                           .Mangel = {},
                           .Grund = m_aufenthalt,
                           .TorZu = m_torZu,
                           .Wach = m_wach};
    ereignis.Mangel.Assign(m_stand.VerzoegerungsGrund[order.item]);
    beobachter.Start(ereignis);
}

/// It occupies no queue: the next order of the building queue need not wait for it.
void Simulation::StarteProduktion(std::size_t zeile, Laufbeobachter& beobachter) {
    const Order& order = m_auftraege[zeile];
    SetProdfaktor(order.factors, m_stand);
    m_tabelle.SetFinish(m_stand.secsgone, zeile);
    beobachter.Start({.Zeile = zeile,
                      .Order = order,
                      .Start = m_stand.secsgone,
                      .Finish = m_stand.secsgone,
                      .Mangel = {.kind = Shortage::Kind::Unstated},
                      .Grund = m_aufenthalt});
}

void Simulation::Beende(const Order& order, Laufbeobachter& beobachter) {
    if (order.kind == Order::Kind::Item) {
        UpgradeFinished(RowOf(order.item), m_stand);
    }
    beobachter.Finish(order);
}

}  // namespace tarvelin
