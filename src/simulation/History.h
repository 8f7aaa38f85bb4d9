// The history of a run, for charts.
#pragma once

#include <vector>

#include "model/GameState.h"
#include "model/Resource.h"
#include "simulation/RunObserver.h"

namespace tarvelin {

/// The state after an event. Until the next one the stocks change linearly at these rates.
struct HistoryPoint {
    SimTime time;
    PerResource<FixedPoint> stock{};
    PerResource<FixedPoint> ProStunde{};
    Long EnergieProduktion = 0;
    Long EnergieVerbrauch = 0;
    /// Share of the mines' energy need that is met, at most 1.
    FixedPoint ProdFaktor;
    PerItem<Byte> Stufe{};
};

/// Keeps a point for each step, in the sequence of the run. Their times aren't always ascending:
/// the clock can step back by a click buffer.
class HistoryRecorder final : public RunObserver {
  public:
    /// `initial` is the state before the first step.
    explicit HistoryRecorder(const GameState& initial) { OnStepDone(initial); }

    void OnStepDone(const GameState& state) override;

    [[nodiscard]] const std::vector<HistoryPoint>& Recorded() const { return m_points; }

  private:
    std::vector<HistoryPoint> m_points;
};

/// The stocks `seconds` after a point if nothing happens meanwhile, rounded as in the run.
[[nodiscard]] PerResource<FixedPoint> StockAfter(const HistoryPoint& point, Long seconds);

}  // namespace tarvelin
