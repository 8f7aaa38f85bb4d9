// How long an order has to wait, and what for.
#pragma once

#include <cstdint>

#include "model/GameState.h"
#include "model/ItemId.h"
#include "model/ItemTable.h"
#include "model/RunConditions.h"

namespace tarvelin {

/// Whether an item's gate is open, or why not. The values are seconds, which the run adds to the
/// clock like any wait.
enum class GateValue : Long {
    Open = 0,
    /// Costs deuterium, and there is neither a power plant nor a deuterium mine.
    NoDeuteriumSource = -1,
    /// The lab lacks deuterium production.
    ForNow = 100'000'000,
    /// A level or the production of deuterium is missing, or the facility that serves the item is
    /// being upgraded.
    Prerequisite = 1'000'000'000,
};

/// What an order waits for; of several causes, the one that lasts longest.
enum class DelayCause : std::uint8_t {
    None,
    /// A level that hasn't been reached.
    Level,
    /// The facility that serves its queue is being upgraded.
    FacilityUpgrade,
    /// There is no source of deuterium, or no production of it.
    Deuterium,
    /// The stock of a resource.
    Resource,
    /// A busy queue: its own, or the one that a facility serves.
    Queue,
    /// The player sleeps.
    Sleep,
};

/// What holds an order back. Each of the other fields goes with one cause.
struct Delay {
    DelayCause cause = DelayCause::None;
    /// The level that is missing.
    LevelRequirement missing{};
    /// The queue that is busy, or whose facility is being upgraded.
    Queue queue = Queue::None;
    /// What the stocks lacked.
    Shortage shortage{};

    friend bool operator==(const Delay&, const Delay&) = default;
};

/// A wait, from the present moment of the clock.
struct Wait {
    /// At least the value of the `GateValue` where a gate is closed.
    Long seconds = 0;
    /// What the stocks lack; `Unstated` where a gate is closed, as nobody looks at them then.
    Shortage shortage;
    Delay delay;
    /// What `seconds` would be without sleep windows; 0 where a gate is closed.
    Long sleepFreeSeconds = 0;

    [[nodiscard]] bool GateClosed() const { return shortage.kind == Shortage::Kind::Unstated; }
};

/// Seconds until the next step of an item can start: the gates, then the wait for resources, then
/// the sleep windows. A facility isn't upgraded before the queue that it serves is free.
[[nodiscard]] Wait GetTimeUntilUpgradeIsPossible(const ItemRow& item, const GameState& state,
                                                 const RunConditions& conditions);

}  // namespace tarvelin
