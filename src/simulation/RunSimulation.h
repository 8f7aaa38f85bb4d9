// A run with what a player sees of it.
#pragma once

#include <span>

#include "model/GameState.h"
#include "model/RunConditions.h"
#include "plan/Plan.h"
#include "simulation/Schedule.h"
#include "util/Message.h"

namespace tarvelin {

/// What a run leaves behind until the next run or reset.
struct LastRun {
    RunConditions conditions;
    GameState state;
    Schedule LV_Bauzeiten;

    /// The state before the first event of a run.
    void ResetSimulation(const RunConditions& given);

    /// The same without a run: a temperature that can't be used leaves the former one, all other
    /// conditions stay.
    void ResetSimulation(const StartParameters& parameters);
};

/// Plays the orders from the first to the last; `run` has begun.
void RunSimulation(std::span<const Order> orders, LastRun& run, MessageSink& messages);

}  // namespace tarvelin
