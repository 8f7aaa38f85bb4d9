// Runs orders for their schedule and messages.
#include "simulation/RunSimulation.h"

#include "model/Transitions.h"
#include "simulation/ObserverGroup.h"
#include "simulation/RunReporter.h"
#include "simulation/Simulation.h"

namespace tarvelin {

void LastRun::ResetSimulation(const RunConditions& given) {
    conditions = given;
    state = InitialState(conditions);
    LV_Bauzeiten.clear();
}

void LastRun::ResetSimulation(const StartParameters& parameters) {
    conditions.Temperatur = ParseTemperature(parameters).value_or(conditions.Temperatur);
    state = InitialState(conditions);
    LV_Bauzeiten.clear();
}

void LastRun::Assign(const RunTrace& trace) {
    ResetSimulation(trace.conditions);
    state = trace.end;
    for (const StartEvent& start : trace.starts) {
        AddBauzeit(conditions.StartDate, start, LV_Bauzeiten);
    }
}

void RunSimulation(std::span<const Order> orders, LastRun& run, MessageSink& messages) {
    run.LV_Bauzeiten.reserve(orders.size());
    ScheduleRecorder recorder(run.conditions, run.LV_Bauzeiten);
    RunReporter reporter(messages);
    ObserverGroup observer(recorder, reporter);
    Simulation simulation(orders, run.conditions);
    simulation.RunToEnd(observer);
    run.state = simulation.State();
}

}  // namespace tarvelin
