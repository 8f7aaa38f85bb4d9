// The event table of a run, `LV_Eventhandler`: the finish of each order under way and the start of
// the one order that waits.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "model/SimTime.h"

namespace tarvelin {

/// Rows are sorted by moment. At the same moment finish rows come before the start row, and finish
/// rows in the sequence in which they were entered. A row names its order by its index in the list.
class EventTable {
  public:
    struct Event {
        SimTime time;
        std::uint16_t order = 0;
        bool StartFlag = false;
    };

    /// Enters a finish row, or the start row, of which there is one at a time.
    void SetEvent(SimTime Zeit, std::size_t order, bool StartFlag);

    [[nodiscard]] bool NoStartPending() const { return !m_isPending; }
    /// The order that waits for its start.
    [[nodiscard]] std::size_t PendingOrder() const { return m_pendingOrder; }
    /// Moves the start row to another moment.
    void RetimeStart(SimTime time) { m_startTime = time; }

    [[nodiscard]] bool HasFinishBefore(SimTime time) const {
        return m_finishCount > 0 && m_finishes[m_finishCount - 1].time < time;
    }

    [[nodiscard]] bool IsEmpty() const { return NoStartPending() && m_finishCount == 0; }

    /// Takes out the earliest row; there must be one.
    Event ClearEvent();

  private:
    /// The most that a run ever has at once: one for each queue, as its next order can't start
    /// before, and those of production rows. A production row finishes with the next event, unless
    /// an order without a source of deuterium starts a second earlier, which happens at most once
    /// for each queue.
    static constexpr std::size_t kFinishEvents = 8;

    SimTime m_startTime;
    std::uint16_t m_pendingOrder = 0;
    bool m_isPending = false;
    std::size_t m_finishCount = 0;
    /// The earliest comes last.
    std::array<Event, kFinishEvents> m_finishes{};
};

}  // namespace tarvelin
