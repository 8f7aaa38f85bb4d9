// Rows of the timetable.
#include "simulation/EventTabelle.h"

#include <utility>

namespace tarvelin {

void EventTabelle::SetFinish(Moment zeit, std::size_t order) {
    std::size_t platz = m_zahl++;
    m_finishs.at(platz) = {.Zeit = zeit, .Order = static_cast<std::uint16_t>(order)};
    for (; platz > 0 && m_finishs[platz - 1].Zeit <= zeit; --platz) {
        std::swap(m_finishs[platz], m_finishs[platz - 1]);
    }
}

EventTabelle::Zeile EventTabelle::NimmErste() {
    const bool start =
        !NoStartPending() && (m_zahl == 0 || m_start.Zeit < m_finishs[m_zahl - 1].Zeit);
    return start ? std::exchange(m_start, Zeile()) : m_finishs[--m_zahl];
}

}  // namespace tarvelin
