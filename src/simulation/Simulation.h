// The run of orders through simulated time.
#pragma once

#include <span>

#include "model/GameState.h"
#include "model/RunConditions.h"
#include "plan/Order.h"
#include "simulation/EventTable.h"
#include "simulation/RunObserver.h"

namespace tarvelin {

/// A run as a value. It goes event by event: time jumps to the earliest row of the event table, and
/// the order there starts or finishes. A copy is a run of its own and goes on from there. Orders
/// appended to the list meanwhile enter at the next step.
///
/// Orders and conditions must outlive it; at most 254 orders.
class Simulation {
  public:
    Simulation(std::span<const Order> orders, const RunConditions& conditions);

    /// Continues with other orders, the first `NextListRow()` of which must be the same as before.
    void ReplaceOrders(std::span<const Order> orders) { m_orders = orders; }

    /// How many orders have entered the event table; the others have no effect yet.
    [[nodiscard]] std::size_t NextListRow() const { return m_NextListRow; }

    /// Whether the run is over: each order goes through two steps, a start and a finish.
    [[nodiscard]] bool IsFinished() const { return m_steps >= 2 * m_orders.size(); }

    /// Carries out the earliest event. Only if the run isn't over.
    void Step(RunObserver& observer);

    void RunToEnd(RunObserver& observer);

    /// The state after the last step.
    [[nodiscard]] const GameState& State() const { return m_state; }

  private:
    void EnqueueNext();
    void RetimePending(RunObserver& observer);
    [[nodiscard]] bool WaitsForLaterFinish(const ItemRow& item, SimTime free) const;
    Delay RetimeItem(const ItemRow& item);
    void StartOrder(std::size_t row, RunObserver& observer);
    void StartItem(std::size_t row, RunObserver& observer);
    void StartProduction(std::size_t row, RunObserver& observer);
    void FinishOrder(const Order& order);

    std::span<const Order> m_orders;
    const RunConditions* m_conditions;
    GameState m_state;
    EventTable m_LV_Eventhandler;
    /// The next order to enter the event table.
    std::size_t m_NextListRow = 0;
    std::size_t m_steps = 0;
    /// When the waiting order's wait ends; an unknown order keeps that of the order before it.
    SimTime m_readyAt;
    /// What held the waiting order back when it was last timed.
    Delay m_delay;
    /// Whether a gate was closed when it was last timed.
    bool m_gateClosed = false;
    /// The earliest moment from which only a sleep window has held it back.
    SimTime m_sleepFree;
};

}  // namespace tarvelin
