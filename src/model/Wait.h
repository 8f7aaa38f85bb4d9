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
enum class GateValue : Long {
    Open = 0,
    /// Costs deuterium, and neither a power plant nor a deuterium mine stands.
    NoDeuteriumSource = -1,
    /// The lab lacks deuterium production.
    ForNow = 100'000'000,
    /// A level is missing, or the facility that serves the item is being raised.
    Prerequisite = 1'000'000'000,
};

/// What an order waits for; where several things hold it back, the one that lets go last.
enum class DelayCause : std::uint8_t {
    None,
    /// A level that isn't reached yet.
    Level,
    /// The facility that serves its queue is being raised.
    FacilityUpgrade,
    /// There is no source of deuterium, or no production of it.
    Deuterium,
    /// The stock of a resource.
    Resource,
    /// A queue at work: its own, or that which a facility serves.
    Queue,
    /// The player sleeps.
    Sleep,
};

/// What holds an order back.
struct Delay {
    DelayCause cause = DelayCause::None;
    /// The level that is missing.
    LevelRequirement missing{};
    /// The queue at work.
    Queue queue = Queue::None;
    /// What the stocks lacked.
    Shortage shortage{};

    friend bool operator==(const Delay&, const Delay&) = default;
};

/// A wait from the moment of the clock on.
struct Wait {
    /// Or the value of a `GateValue`.
    Long seconds = 0;
    /// What the stocks lack; `Unstated` where a gate is closed, as the stocks aren't asked then.
    Shortage shortage;
    Delay delay;
    /// The seconds without any sleep window.
    Long sleepFreeSeconds = 0;

    [[nodiscard]] bool GateClosed() const { return shortage.kind == Shortage::Kind::Unstated; }
};

/// Seconds until the next step of an item can start: the gates, then the wait for resources, then
/// the sleep windows. A facility is never raised before the queue that it serves falls free.
[[nodiscard]] Wait GetTimeUntilUpgradeIsPossible(const ItemRow& item, const GameState& state,
                                                 const RunConditions& conditions);

}  // namespace tarvelin
