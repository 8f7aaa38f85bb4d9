// What a run reports, and to whom.
#pragma once

#include <cstddef>
#include <cstdint>

#include "model/GameState.h"
#include "model/SimTime.h"
#include "model/Wait.h"
#include "plan/Order.h"

namespace tarvelin {

/// The start of an order.
struct StartEvent {
    /// In the build list, from 0.
    std::size_t row = 0;
    Order order;
    /// The level or number that an item reaches; 0 for a production row.
    Byte number = 0;
    SimTime start;
    /// A production row finishes as it starts.
    SimTime finish;
    /// What the stocks lacked when the start was last timed.
    Shortage shortage;
    /// What held it back last; `None` if it waited only for the row before it.
    Delay delay;
    /// Whether it starts through a closed gate, as nothing was left that could open it.
    bool gateClosed = false;
    /// When it could have started without the sleep windows; the last moment of the clock if none
    /// held it back.
    SimTime sleepFreeStart{};

    friend bool operator==(const StartEvent&, const StartEvent&) = default;
};

/// What the run was about to do with an order of unknown code.
enum class UnknownOrderAt : std::uint8_t { Start, Wait };

/// Is told of a run in figures. A hook does nothing unless it is overridden.
class RunObserver {
  public:
    RunObserver() = default;
    RunObserver(const RunObserver&) = delete;
    RunObserver& operator=(const RunObserver&) = delete;
    virtual ~RunObserver() = default;

    virtual void OnStart(const StartEvent& /*event*/) {}
    /// A start has left a stock below 0. The energy balance hasn't followed yet.
    virtual void OnNegativeStock(const GameState& /*state*/) {}
    virtual void OnUnknownOrder(UnknownOrderAt /*where*/) {}
    /// A step found nothing to do.
    virtual void OnEmptyStep() {}
    /// A step is over, the energy balance included.
    virtual void OnStepDone(const GameState& /*state*/) {}
};

}  // namespace tarvelin
