// Recording and reading points of the history.
#include "simulation/History.h"

#include "model/Transitions.h"

namespace tarvelin {

void HistoryRecorder::OnStepDone(const GameState& state) {
    m_points.push_back({.time = state.secsgone,
                        .stock = state.stock,
                        .ProStunde = state.ProStunde,
                        .EnergieProduktion = state.EnergieProduktion,
                        .EnergieVerbrauch = state.EnergieVerbrauch,
                        .ProdFaktor = state.ProdFaktor,
                        .Stufe = state.Stufe});
}

PerResource<FixedPoint> StockAfter(const HistoryPoint& point, Long seconds) {
    GameState state;
    state.stock = point.stock;
    state.ProStunde = point.ProStunde;
    ForEachResource([&](Resource mine) { Passtime(mine, seconds, state); });
    return state.stock;
}

}  // namespace tarvelin
