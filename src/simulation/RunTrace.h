// A run with all that a picture of it shows.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "model/RunConditions.h"
#include "simulation/History.h"
#include "simulation/RunObserver.h"
#include "util/Message.h"

namespace tarvelin {

struct Ablauf {
    RunConditions Bedingungen;
    /// The starts in the order of the rows. A row without a rule of its own has none.
    std::vector<Startereignis> Starts;
    /// The history, at each moment with the last state that the run recorded for it.
    std::vector<Verlaufspunkt> Kurve;
    GameState Ende;
    std::vector<Message> Meldungen;

    /// When the last order is done.
    [[nodiscard]] SimTime Dauer() const { return Ende.secsgone; }
    /// Nothing for a row that never started.
    [[nodiscard]] const Startereignis* StartDer(std::size_t zeile) const;
};

/// Plays orders to the end.
[[nodiscard]] Ablauf SpieleAb(std::span<const Order> auftraege, const RunConditions& bedingungen);

/// The points of a history in the order of time. Where the clock stepped back, by a click buffer,
/// what was recorded before for the moments behind it is gone.
[[nodiscard]] std::vector<Verlaufspunkt> KurveAus(std::span<const Verlaufspunkt> verlauf);

/// The last point not behind a moment, or the first. The curve isn't empty.
[[nodiscard]] const Verlaufspunkt& PunktUm(std::span<const Verlaufspunkt> kurve, SimTime moment);

}  // namespace tarvelin
