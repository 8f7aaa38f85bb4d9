// Plays lists that differ from the one before in a part only.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "search/Score.h"
#include "search/SearchTask.h"
#include "simulation/Simulation.h"
#include "simulation/Sittings.h"

namespace tarvelin {

/// Keeps a copy of the run before each row of a list, so that another list that begins alike is
/// played from its first other row on.
class IncrementalEvaluator {
  public:
    /// The task must outlive it.
    explicit IncrementalEvaluator(const SearchTask& task);

    /// Plays a list of which the first `same` orders are those of the list that was taken over
    /// last. Nothing if the list doesn't end: if an order starts in debt or on the value of a
    /// closed gate, or one that isn't played yet before its time; nothing as well as soon as the
    /// clock passes `limit`.
    [[nodiscard]] std::optional<Score> Evaluate(std::span<const Order> orders, std::size_t same,
                                                Long limit);

    /// The list that was played last is the one to begin with from now on. It has ended.
    void Accept();

    /// How many orders of the list that was played last have started well.
    [[nodiscard]] std::size_t StartedCount() const { return m_started; }

  private:
    struct SittingState {
        SittingCounter counted;
        SimTime sleepFreeStart;
    };
    struct Checkpoint {
        Simulation simulation;
        SittingState sittings;
    };
    class StartGuard;

    const SearchTask* m_task;
    /// Two for each row: that of the list that was taken over, and that of the last one.
    std::vector<std::array<Checkpoint, 2>> m_checkpoints;
    std::vector<unsigned char> m_valid;
    std::size_t m_samePrefix = 0;
    std::size_t m_started = 0;
};

}  // namespace tarvelin
