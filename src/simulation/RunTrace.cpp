// Starts, history and messages of one run.
#include "simulation/RunTrace.h"

#include <algorithm>

#include "simulation/ObserverGroup.h"
#include "simulation/RunReporter.h"
#include "simulation/Simulation.h"

namespace tarvelin {

namespace {

class StartRecorder final : public RunObserver {
  public:
    explicit StartRecorder(std::vector<StartEvent>& starts) : m_starts(starts) {}

    void OnStart(const StartEvent& event) override { m_starts.push_back(event); }

  private:
    std::vector<StartEvent>& m_starts;
};

}  // namespace

const StartEvent* RunTrace::StartOf(std::size_t row) const {
    const auto start = std::ranges::lower_bound(starts, row, {}, &StartEvent::row);
    return start != starts.end() && start->row == row ? &*start : nullptr;
}

RunTrace TraceRun(std::span<const Order> orders, const RunConditions& conditions) {
    RunTrace trace;
    trace.conditions = conditions;
    trace.starts.reserve(orders.size());
    Simulation simulation(orders, trace.conditions);
    StartRecorder startRecorder(trace.starts);
    HistoryRecorder historyRecorder(simulation.State());
    MessageCollector collector(trace.messages);
    RunReporter reporter(collector);
    ObserverGroup observer(startRecorder, historyRecorder, reporter);
    simulation.RunToEnd(observer);
    trace.end = simulation.State();
    trace.curve = CurveFrom(historyRecorder.Recorded());
    return trace;
}

std::vector<HistoryPoint> CurveFrom(std::span<const HistoryPoint> history) {
    std::vector<HistoryPoint> curve;
    curve.reserve(history.size());
    for (const HistoryPoint& point : history) {
        while (!curve.empty() && curve.back().time >= point.time) {
            curve.pop_back();
        }
        curve.push_back(point);
    }
    return curve;
}

const HistoryPoint& PointAt(std::span<const HistoryPoint> curve, SimTime moment) {
    const auto next = std::ranges::upper_bound(curve, moment, {}, &HistoryPoint::time);
    return next == curve.begin() ? curve.front() : *(next - 1);
}

}  // namespace tarvelin
