// Rows of the timetable.
#include "simulation/EventTabelle.h"

#include <algorithm>

#include "util/Nuetzliches.h"

namespace tarvelin {

void EventTabelle::SetEvent(Moment zeit, const BaulistenZeile& order, bool start) {
    const auto* const frei = std::find(m_schluessel.begin(), m_schluessel.end(), kFrei);
    const auto zeile = static_cast<std::size_t>(frei - m_schluessel.begin());
    m_schluessel.at(zeile) = Schluessel(zeit, start ? kStart : kFinish, m_naechsteNummer++);
    m_orders[zeile] = &order;
    if (start) {
        m_startzeile = zeile;
    }
}

void EventTabelle::ClearEvent(std::size_t zeile) {
    m_schluessel[zeile] = kFrei;
    if (IstStart(zeile)) {
        m_startzeile = kZeilen;
    }
}

std::string EventTabelle::Zelle(std::size_t rang, std::size_t spalte) const {
    constexpr int kZeitziffern = 12;
    auto sortiert = m_schluessel;
    std::ranges::sort(sortiert);
    const auto* const ort = std::ranges::find(m_schluessel, sortiert.at(rang));
    const auto zeile = static_cast<std::size_t>(ort - m_schluessel.begin());
    if (IstFrei(zeile)) {
        return spalte == 0 ? "NONE" : "";
    }
    const std::string& tag = Order(zeile).Tag;
    const std::string detail = tag.empty() ? "" : tag.substr(1);
    const bool produktion = detail.starts_with('X');
    switch (spalte) {
        case 0:
            return PadIntegerDigits(std::to_string(Zeit(zeile).Sekunden()), kZeitziffern);
        case 1:
            return tag.substr(0, 1);
        case 2:
            return produktion ? "X" : detail;
        case 3:
            return IstStart(zeile) ? "1" : "0";
        default:
            if (!produktion) {
                return "";
            }
            return IstStart(zeile) ? detail : "X";
    }
}

}  // namespace tarvelin
