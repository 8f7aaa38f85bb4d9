// Enters and takes out rows of the event table.
#include "simulation/EventTable.h"

namespace tarvelin {

void EventTable::SetEvent(SimTime Zeit, std::size_t order, bool StartFlag) {
    const auto index = static_cast<std::uint16_t>(order);
    if (StartFlag) {
        m_startTime = Zeit;
        m_pendingOrder = index;
        m_isPending = true;
        return;
    }
    std::size_t slot = m_finishCount++;
    for (; slot > 0 && m_finishes[slot - 1].time <= Zeit; --slot) {
        m_finishes.at(slot) = m_finishes[slot - 1];
    }
    m_finishes.at(slot) = {.time = Zeit, .order = index};
}

EventTable::Event EventTable::ClearEvent() {
    if (m_isPending && (m_finishCount == 0 || m_startTime < m_finishes[m_finishCount - 1].time)) {
        m_isPending = false;
        return {.time = m_startTime, .order = m_pendingOrder, .StartFlag = true};
    }
    return m_finishes[--m_finishCount];
}

}  // namespace tarvelin
