// Rows of the timetable.
#include "simulation/EventTable.h"

namespace tarvelin {

void EventTabelle::SetFinish(SimTime zeit, std::size_t order) {
    std::size_t platz = m_zahl++;
    for (; platz > 0 && m_finishs[platz - 1].Zeit <= zeit; --platz) {
        m_finishs.at(platz) = m_finishs[platz - 1];
    }
    m_finishs.at(platz) = {.Zeit = zeit, .Order = static_cast<std::uint16_t>(order)};
}

EventTabelle::Zeile EventTabelle::NimmErste() {
    if (m_wartetEiner && (m_zahl == 0 || m_startzeit < m_finishs[m_zahl - 1].Zeit)) {
        m_wartetEiner = false;
        return {.Zeit = m_startzeit, .Order = m_wartender, .IstStart = true};
    }
    return m_finishs[--m_zahl];
}

}  // namespace tarvelin
