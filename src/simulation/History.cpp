// Points of the history.
#include "simulation/History.h"

#include "model/Transitions.h"

namespace tarvelin {

void Verlauf::NachSchritt(const Spielstand& stand) {
    m_punkte.push_back({.Zeit = stand.secsgone,
                        .Vorrat = stand.Vorrat,
                        .ProStunde = stand.ProStunde,
                        .EnergieProduktion = stand.EnergieProduktion,
                        .EnergieVerbrauch = stand.EnergieVerbrauch,
                        .Stufen = stand.Stufen});
}

JeRohstoff<FixedPoint> VorratNach(const Verlaufspunkt& punkt, Long sekunden) {
    Spielstand stand;
    stand.Vorrat = punkt.Vorrat;
    stand.ProStunde = punkt.ProStunde;
    VergeheZeit(sekunden, stand);
    return stand.Vorrat;
}

}  // namespace tarvelin
