// Differences between lists.
#include "plan/Listenverlauf.h"

#include <algorithm>
#include <utility>

namespace tarvelin {

namespace {

using Tags = Listenverlauf::Tags;

/// Puts some rows in the place of others.
Tags Tausche(Tags liste, std::size_t ab, const Tags& weg, const Tags& hinzu) {
    const auto anfang = liste.begin() + static_cast<std::ptrdiff_t>(ab);
    const auto stelle = liste.erase(anfang, anfang + static_cast<std::ptrdiff_t>(weg.size()));
    liste.insert(stelle, hinzu.begin(), hinzu.end());
    return liste;
}

}  // namespace

void Listenverlauf::Merke(const Tags& vorher, const Tags& nachher,
                          const std::optional<SchlafzeitZeile>& pause) {
    const auto [vorn, vornNachher] = std::ranges::mismatch(vorher, nachher);
    if (vorn == vorher.end() && vornNachher == nachher.end() && !pause) {
        return;
    }
    const auto ab = vorn - vorher.begin();
    const auto gemeinsam = std::min(vorher.size(), nachher.size()) - static_cast<std::size_t>(ab);
    std::size_t hinten = 0;
    while (hinten < gemeinsam &&
           vorher[vorher.size() - 1 - hinten] == nachher[nachher.size() - 1 - hinten]) {
        ++hinten;
    }
    const auto ende = static_cast<std::ptrdiff_t>(hinten);
    m_schritte.resize(m_gegangen);
    m_schritte.push_back({.Ab = static_cast<std::size_t>(ab),
                          .Weg = Tags(vorn, vorher.end() - ende),
                          .Hinzu = Tags(vornNachher, nachher.end() - ende),
                          .Pause = pause});
    ++m_gegangen;
}

Listenverlauf::Stand Listenverlauf::Zurueck(Tags jetzt) {
    const Schritt& schritt = m_schritte[--m_gegangen];
    return {Tausche(std::move(jetzt), schritt.Ab, schritt.Hinzu, schritt.Weg), schritt.Pause};
}

Listenverlauf::Stand Listenverlauf::Vor(Tags jetzt) {
    const Schritt& schritt = m_schritte[m_gegangen++];
    return {Tausche(std::move(jetzt), schritt.Ab, schritt.Weg, schritt.Hinzu), schritt.Pause};
}

}  // namespace tarvelin
