// The history of a run, for charts.
#pragma once

#include <vector>

#include "model/GameState.h"
#include "model/Resource.h"
#include "simulation/RunObserver.h"

namespace tarvelin {

/// The state behind an event. Until the next one the stocks go on by the rates, in a straight line.
struct Verlaufspunkt {
    SimTime Zeit;
    PerResource<FixedPoint> Vorrat{};
    PerResource<FixedPoint> ProStunde{};
    Long EnergieProduktion = 0;
    Long EnergieVerbrauch = 0;
    PerItem<Byte> Stufen{};
};

/// Keeps a point of each step, in the order of the run: the clock can step back by a click buffer.
class Verlauf final : public Laufbeobachter {
  public:
    /// `anfang` is the state before the first step.
    explicit Verlauf(const GameState& anfang) { NachSchritt(anfang); }

    void NachSchritt(const GameState& stand) override;

    [[nodiscard]] const std::vector<Verlaufspunkt>& Punkte() const { return m_punkte; }

  private:
    std::vector<Verlaufspunkt> m_punkte;
};

/// The stocks `sekunden` behind a point, as the run rounds them if nothing happens meanwhile.
[[nodiscard]] PerResource<FixedPoint> VorratNach(const Verlaufspunkt& punkt, Long sekunden);

}  // namespace tarvelin
