// The walk from event to event.
#include "simulation/Simulation.h"

#include <algorithm>
#include <limits>

#include "model/ItemTable.h"
#include "model/Mines.h"
#include "model/Transitions.h"

namespace tarvelin {

namespace {

constexpr SimTime kNever(std::numeric_limits<Long>::max());

}  // namespace

Simulation::Simulation(std::span<const Order> orders, const RunConditions& conditions)
    : m_orders(orders), m_conditions(&conditions), m_state(InitialState(conditions)) {}

void Simulation::RunToEnd(RunObserver& observer) {
    while (!IsFinished()) {
        Step(observer);
    }
}

void Simulation::Step(RunObserver& observer) {
    EnqueueNext();
    // The first order is never timed: it starts at moment 0, whatever stocks and gates say.
    if (m_steps > 0 && !m_LV_Eventhandler.NoStartPending()) {
        RetimePending(observer);
    }
    ++m_steps;
    if (m_LV_Eventhandler.IsEmpty()) {
        // Only orders with unknown codes leave a step without an event.
        observer.OnEmptyStep();
        return;
    }
    const EventTable::Event first = m_LV_Eventhandler.ClearEvent();
    // Negative where an order's click buffer has carried the clock past this event.
    VergeheZeit(first.time - m_state.secsgone, first.StartFlag, m_state, *m_conditions);
    if (first.StartFlag) {
        StartOrder(first.order, observer);
    } else {
        FinishOrder(m_orders[first.order]);
    }
    EnergieBilanz(m_state, *m_conditions);
    observer.OnStepDone(m_state);
}

/// One order waits at a time, in the sequence of the list.
void Simulation::EnqueueNext() {
    if (m_LV_Eventhandler.NoStartPending() && m_NextListRow < m_orders.size()) {
        m_LV_Eventhandler.SetEvent(SimTime(), m_NextListRow++, true);
        m_delay = {};
        m_gateClosed = false;
        m_sleepFree = kNever;
    }
}

/// Times the waiting order from the present state, whatever it was timed to before.
void Simulation::RetimePending(RunObserver& observer) {
    const Order& order = m_orders[m_LV_Eventhandler.PendingOrder()];
    const SimTime free = m_state.FertigZeit[order.queue];
    Delay delay;
    switch (order.kind) {
        case Order::Kind::Item:
            if (WaitsForLaterFinish(RowOf(order.item), free)) {
                m_LV_Eventhandler.RetimeStart(free);
                return;
            }
            delay = RetimeItem(RowOf(order.item));
            break;
        case Order::Kind::Production:
            m_readyAt = m_state.secsgone;
            break;
        case Order::Kind::Unknown:
            observer.OnUnknownOrder(UnknownOrderAt::Wait);
            break;
    }
    if (free > m_readyAt) {
        delay = {.cause = DelayCause::Queue, .queue = order.queue};
    }
    const SimTime start = std::max(m_readyAt, free);
    m_LV_Eventhandler.RetimeStart(start);
    if (start > m_state.secsgone) {
        m_delay = delay;
        if (delay.cause == DelayCause::Resource) {
            m_delay.shortage.Assign(m_state.VerzoegerungsGrund[order.item]);
        }
    }
}

/// Whether the order's queue stays busy beyond the next finish: the order is then timed again
/// before it can start, so its wait doesn't matter yet. Not if its gate could close before that, as
/// the shortage seen with the gate still open is then the one that is kept.
bool Simulation::WaitsForLaterFinish(const ItemRow& item, SimTime free) const {
    return m_LV_Eventhandler.HasFinishBefore(free) &&
           item.traits.deuteriumGate == DeuteriumGate::PlantOrMine;
}

Delay Simulation::RetimeItem(const ItemRow& item) {
    const Wait wait = GetTimeUntilUpgradeIsPossible(item, m_state, *m_conditions);
    m_readyAt = m_state.secsgone + wait.seconds;
    m_gateClosed = wait.GateClosed();
    if (wait.delay.cause == DelayCause::Sleep) {
        m_sleepFree = std::min(m_sleepFree, m_state.secsgone + wait.sleepFreeSeconds);
    }
    if (!m_gateClosed) {
        m_state.VerzoegerungsGrund[item.item].Assign(wait.shortage);
    }
    return wait.delay;
}

void Simulation::StartOrder(std::size_t row, RunObserver& observer) {
    switch (m_orders[row].kind) {
        case Order::Kind::Item:
            StartItem(row, observer);
            break;
        case Order::Kind::Production:
            StartProduction(row, observer);
            break;
        case Order::Kind::Unknown:
            observer.OnUnknownOrder(UnknownOrderAt::Start);
            break;
    }
    // The first order starts even if it costs more than the start stocks, and so does one without
    // a source of deuterium. Each start reports it until the stocks have recovered.
    if (std::ranges::min(m_state.stock) < FixedPoint()) {
        observer.OnNegativeStock(m_state);
    }
}

// The click buffer counts twice: before the start, and after the finish until the queue is free.
void Simulation::StartItem(std::size_t row, RunObserver& observer) {
    const Order& order = m_orders[row];
    const ItemRow& item = RowOf(order.item);
    UpgradeStart(item, m_state);
    const double finished =
        m_state.secsgone.Seconds() + GetUpgradeTime(item, m_state, *m_conditions);
    const SimTime finish(HalfEvenLong(finished));
    m_LV_Eventhandler.SetEvent(finish, row, false);
    m_state.FertigZeit[order.queue] =
        SimTime(HalfEvenLong(finished + 1 + m_conditions->KlickPuffer));
    StartEvent event{.row = row,
                     .order = order,
                     .number = Saturate<Byte>(m_state.GetStufe(order.item) + 1),
                     .start = m_state.secsgone,
                     .finish = finish,
                     .shortage = {},
                     .delay = m_delay,
                     .gateClosed = m_gateClosed,
                     .sleepFreeStart = m_sleepFree};
    event.shortage.Assign(m_state.VerzoegerungsGrund[order.item]);
    observer.OnStart(event);
}

/// Occupies no queue: the next building need not wait for it.
void Simulation::StartProduction(std::size_t row, RunObserver& observer) {
    const Order& order = m_orders[row];
    ForEachResource([&](Resource mine) { SetProdfaktor(mine, order.factors[mine], m_state); });
    m_LV_Eventhandler.SetEvent(m_state.secsgone, row, false);
    observer.OnStart({.row = row,
                      .order = order,
                      .start = m_state.secsgone,
                      .finish = m_state.secsgone,
                      .shortage = {.kind = Shortage::Kind::Unstated},
                      .delay = m_delay});
}

void Simulation::FinishOrder(const Order& order) {
    if (order.kind == Order::Kind::Item) {
        UpgradeFinished(RowOf(order.item), m_state);
    }
}

}  // namespace tarvelin
