// Resumes runs from checkpoints.
#include "search/IncrementalEvaluator.h"

#include <limits>

#include "plan/OrderList.h"

namespace tarvelin {

/// Notices starts that mustn't be, and counts sittings.
class IncrementalEvaluator::StartGuard final : public RunObserver {
  public:
    StartGuard(const SearchTask& task, const SittingState& counter)
        : sittings(counter), m_task(task) {}

    void OnStart(const StartEvent& event) override {
        starts = event.row + 1;
        const bool tooEarly = event.row >= m_task.headSize && event.start < m_task.notBefore;
        missed = missed || event.gateClosed || tooEarly;
        sittings.counted.Add(event.start);
        if (event.delay.cause == DelayCause::Sleep) {
            sittings.sleepFreeStart = event.sleepFreeStart;
        }
    }
    void OnNegativeStock(const GameState& /*state*/) override { missed = true; }

    SittingState sittings;
    /// How many orders have started.
    std::size_t starts = 0;
    /// An order has started that mustn't.
    bool missed = false;

  private:
    const SearchTask& m_task;
};

IncrementalEvaluator::IncrementalEvaluator(const SearchTask& task)
    : m_task(&task),
      m_checkpoints(OrderList::kMaxSize + 1, {Checkpoint{Simulation({}, task.conditions), {}},
                                              Checkpoint{Simulation({}, task.conditions), {}}}),
      m_valid(OrderList::kMaxSize + 1) {}

std::optional<Score> IncrementalEvaluator::Evaluate(std::span<const Order> orders, std::size_t same,
                                                    Long limit) {
    m_samePrefix = same;
    m_started = same;
    const Checkpoint& checkpoint = m_checkpoints[same][m_valid[same]];
    Simulation simulation = checkpoint.simulation;
    simulation.ReplaceOrders(orders);
    StartGuard guard(*m_task, checkpoint.sittings);
    while (!simulation.IsFinished()) {
        simulation.Step(guard);
        if (guard.missed || simulation.State().secsgone.Seconds() > limit) {
            return std::nullopt;
        }
        if (guard.starts > m_started) {
            m_started = guard.starts;
            Checkpoint& next = m_checkpoints[m_started][1 - m_valid[m_started]];
            next.simulation = simulation;
            next.sittings = guard.sittings;
        }
    }
    if (simulation.State().secsgone == SimTime(std::numeric_limits<Long>::max())) {
        return std::nullopt;
    }
    return Score{.duration = simulation.State().secsgone.Seconds(),
                 .sittings = guard.sittings.counted.count,
                 .sleepFreeStart = guard.sittings.sleepFreeStart};
}

void IncrementalEvaluator::Accept() {
    for (std::size_t row = m_samePrefix + 1; row <= m_started; ++row) {
        m_valid[row] ^= 1U;
    }
}

}  // namespace tarvelin
