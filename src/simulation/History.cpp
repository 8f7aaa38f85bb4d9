// Points of the history.
#include "simulation/History.h"

#include "model/Transitions.h"

namespace tarvelin {

void Verlauf::NachSchritt(const GameState& stand) {
    m_punkte.push_back({.Zeit = stand.secsgone,
                        .Vorrat = stand.stock,
                        .ProStunde = stand.ProStunde,
                        .EnergieProduktion = stand.EnergieProduktion,
                        .EnergieVerbrauch = stand.EnergieVerbrauch,
                        .Stufen = stand.Stufe});
}

PerResource<FixedPoint> VorratNach(const Verlaufspunkt& punkt, Long sekunden) {
    GameState stand;
    stand.stock = punkt.Vorrat;
    stand.ProStunde = punkt.ProStunde;
    VergeheZeit(sekunden, stand);
    return stand.stock;
}

}  // namespace tarvelin
