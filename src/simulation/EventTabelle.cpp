// Rows of the timetable.
#include "simulation/EventTabelle.h"

#include <algorithm>

#include "util/Nuetzliches.h"

namespace tarvelin {

void EventTabelle::SetEvent(Moment zeit, const BaulistenZeile& order, bool start) {
    std::size_t zeile = start ? kStartzeile : kFinishzeile;
    if (!IstFrei(zeile)) {
        const auto frei = std::ranges::find(m_zeilen, kFrei, &Zeile::Schluessel);
        zeile = static_cast<std::size_t>(frei - m_zeilen.begin());
    }
    m_zeilen.at(zeile) = {.Schluessel = Schluessel(zeit, start), .Order = &order};
}

std::size_t EventTabelle::SucheStart() const {
    for (std::size_t zeile = 0; zeile < kZeilen; ++zeile) {
        if (IstStart(zeile)) {
            return zeile;
        }
    }
    return kKeineZeile;
}

void EventTabelle::Sortiere() {
    // Insertion, as it is stable and the rows are nearly in order already.
    for (std::size_t i = 1; i < kZeilen; ++i) {
        const Zeile zeile = m_zeilen[i];
        std::size_t ort = i;
        while (ort > 0 && m_zeilen[ort - 1].Schluessel > zeile.Schluessel) {
            m_zeilen[ort] = m_zeilen[ort - 1];
            --ort;
        }
        m_zeilen[ort] = zeile;
    }
}

std::string EventTabelle::Zelle(std::size_t zeile, std::size_t spalte) const {
    constexpr int kZeitstellen = 12;
    if (IstFrei(zeile)) {
        return spalte == 0 ? "NONE" : "";
    }
    const std::string& tag = Order(zeile).Tag;
    const std::string detail = tag.empty() ? "" : tag.substr(1);
    const bool produktion = detail.starts_with('X');
    switch (spalte) {
        case 0:
            return PadIntegerDigits(std::to_string(Zeit(zeile).Sekunden()), kZeitstellen);
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
