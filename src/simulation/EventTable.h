// The run's timetable, `LV_Eventhandler`: the finish of each order under way and the start of the
// one order that waits.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "model/SimTime.h"

namespace tarvelin {

/// The rows' order is that of their moments; at one moment finish rows come before the start row,
/// and finish rows in the order in which they were entered. Rows name orders by their places in the
/// list.
class EventTable {
  public:
    struct Event {
        SimTime time;
        std::uint16_t order = 0;
        bool StartFlag = false;
    };

    /// Enters the start row; none waits yet.
    void SetEvent(std::size_t order) {
        m_startTime = SimTime();
        m_pendingOrder = static_cast<std::uint16_t>(order);
        m_isPending = true;
    }
    [[nodiscard]] bool NoStartPending() const { return !m_isPending; }
    /// The place of the order that waits.
    [[nodiscard]] std::size_t PendingOrder() const { return m_pendingOrder; }
    /// Gives the start row that waits another moment.
    void RetimeStart(SimTime time) { m_startTime = time; }

    /// Enters a finish row.
    void SetEvent(SimTime Zeit, std::size_t order);

    [[nodiscard]] bool HasFinishBefore(SimTime time) const {
        return m_number > 0 && m_finishes[m_number - 1].time < time;
    }

    [[nodiscard]] bool IsEmpty() const { return NoStartPending() && m_number == 0; }

    /// Takes out the earliest row. There is one.
    Event ClearEvent();

  private:
    /// All that a run ever has in use: one finish for each queue, as a queue's next order can't
    /// start before its finish, and the finishes of production rows. The next event carries those
    /// out, unless an order without a source of deuterium starts a second before; each queue can
    /// bring one such order.
    static constexpr std::size_t kFinishEvents = 8;

    SimTime m_startTime;
    std::uint16_t m_pendingOrder = 0;
    bool m_isPending = false;
    std::size_t m_number = 0;
    /// The earliest stands at the end.
    std::array<Event, kFinishEvents> m_finishes{};
};

}  // namespace tarvelin
