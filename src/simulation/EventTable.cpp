// Rows of the timetable.
#include "simulation/EventTable.h"

namespace tarvelin {

void EventTable::SetEvent(SimTime Zeit, std::size_t order) {
    std::size_t slot = m_number++;
    for (; slot > 0 && m_finishes[slot - 1].time <= Zeit; --slot) {
        m_finishes.at(slot) = m_finishes[slot - 1];
    }
    m_finishes.at(slot) = {.time = Zeit, .order = static_cast<std::uint16_t>(order)};
}

EventTable::Event EventTable::ClearEvent() {
    if (m_isPending && (m_number == 0 || m_startTime < m_finishes[m_number - 1].time)) {
        m_isPending = false;
        return {.time = m_startTime, .order = m_pendingOrder, .StartFlag = true};
    }
    return m_finishes[--m_number];
}

}  // namespace tarvelin
