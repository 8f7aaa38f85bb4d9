// How long an order has to wait, and what for.
#pragma once

#include <cstdint>

#include "model/GameState.h"
#include "model/ItemId.h"
#include "model/ItemTable.h"
#include "model/RunConditions.h"

namespace tarvelin {

/// Why an item can't be started at all at present. The values are the seconds that it then seems to
/// wait; the run adds them to the clock like any wait.
enum class Sperre : Long {
    Offen = 0,
    /// Costs deuterium, and neither a power plant nor a deuterium mine stands.
    OhneDeuteriumQuelle = -1,
    /// The lab lacks deuterium production.
    Vorerst = 100'000'000,
    /// A level is missing, or the facility that serves the item is being raised.
    Voraussetzung = 1'000'000'000,
};

/// What an order waits for; where several things hold it back, the one that lets go last.
enum class Hindernis : std::uint8_t {
    Keines,
    /// A level that isn't reached yet.
    Stufe,
    /// The facility that serves its queue is being raised.
    Ausbau,
    /// There is no source of deuterium, or no production of it.
    Deuterium,
    /// The stock of a resource.
    Rohstoff,
    /// A queue at work: its own, or that which a facility serves.
    Schlange,
    /// The player sleeps.
    Schlafzeit,
};

/// What holds an order back.
struct Aufenthalt {
    Hindernis Was = Hindernis::Keines;
    /// The level that is missing.
    Stufenbedarf Fehlt{};
    /// The queue at work.
    Schlange Queue = Schlange::Keine;
    /// What the stocks lacked.
    Verzoegerung Mangel{};

    friend bool operator==(const Aufenthalt&, const Aufenthalt&) = default;
};

/// A wait from the moment of the clock on.
struct Wartezeit {
    /// Or the value of a `Sperre`.
    Long Sekunden = 0;
    /// What the stocks lack; `OhneAngabe` where a gate is closed, as the stocks aren't asked then.
    Verzoegerung Mangel;
    Aufenthalt Grund;
    /// The seconds without any sleep window.
    Long Wach = 0;

    [[nodiscard]] bool TorZu() const { return Mangel.Grund == Verzoegerung::Art::OhneAngabe; }
};

/// Seconds until the next step of an item can start: the gates, then the wait for resources, then
/// the sleep windows. A facility is never raised before the queue that it serves falls free.
[[nodiscard]] Wartezeit WarteAuf(const Itemzeile& zeile, const Spielstand& stand,
                                 const Startbedingungen& bedingungen);

}  // namespace tarvelin
