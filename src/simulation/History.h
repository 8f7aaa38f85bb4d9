// The history of a run, for charts.
#pragma once

#include <vector>

#include "model/GameState.h"
#include "model/Resource.h"
#include "simulation/RunObserver.h"

namespace tarvelin {

/// The state behind an event. Until the next one the stocks go on by the rates, in a straight line.
struct HistoryPoint {
    SimTime time;
    PerResource<FixedPoint> stock{};
    PerResource<FixedPoint> ProStunde{};
    Long EnergieProduktion = 0;
    Long EnergieVerbrauch = 0;
    PerItem<Byte> Stufe{};
};

/// Keeps a point of each step, in the order of the run: the clock can step back by a click buffer.
class HistoryRecorder final : public RunObserver {
  public:
    /// `initial` is the state before the first step.
    explicit HistoryRecorder(const GameState& initial) { OnStepDone(initial); }

    void OnStepDone(const GameState& state) override;

    [[nodiscard]] const std::vector<HistoryPoint>& Recorded() const { return m_points; }

  private:
    std::vector<HistoryPoint> m_points;
};

/// The stocks `seconds` behind a point, as the run rounds them if nothing happens meanwhile.
[[nodiscard]] PerResource<FixedPoint> StockAfter(const HistoryPoint& point, Long seconds);

}  // namespace tarvelin
