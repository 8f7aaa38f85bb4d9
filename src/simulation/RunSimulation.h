// A run with what the player sees of it: schedule, final state, messages.
#pragma once

#include <span>

#include "model/GameState.h"
#include "model/RunConditions.h"
#include "plan/Plan.h"
#include "simulation/RunTrace.h"
#include "simulation/Schedule.h"
#include "util/Message.h"

namespace tarvelin {

/// The outcome of a run, kept until the next run or reset.
struct LastRun {
    RunConditions conditions;
    GameState state;
    Schedule LV_Bauzeiten;

    /// Goes to the state before the first event of a run under these conditions.
    void ResetSimulation(const RunConditions& given);

    /// The same without a run: takes the temperature alone, if it is valid, and keeps all other
    /// conditions.
    void ResetSimulation(const StartParameters& parameters);

    /// Takes a recorded run.
    void Assign(const RunTrace& trace);
};

/// Runs all orders; `run` must have been reset to its conditions.
void RunSimulation(std::span<const Order> orders, LastRun& run, MessageSink& messages);

}  // namespace tarvelin
