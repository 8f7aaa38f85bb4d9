// Evaluates a list from the first row in which it differs from the accepted one.
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

/// Keeps a checkpoint of the run before each row of the accepted list.
class IncrementalEvaluator {
  public:
    /// The task must outlive it.
    explicit IncrementalEvaluator(const SearchTask& task);

    /// Plays a list whose first `same` orders are those of the accepted list. Nothing if it never
    /// ends, if an order starts with a negative stock or though its gate is closed, if one after
    /// the head starts before `notBefore`, or once the clock passes `limit`.
    [[nodiscard]] std::optional<Score> Evaluate(std::span<const Order> orders, std::size_t same,
                                                Long limit);

    /// Makes the list that was played last the accepted one.
    void Accept();

    /// How many orders of the list that was played last could start.
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
    /// Two per row: that of the accepted list, at index `m_valid[row]`, and that of the last one.
    std::vector<std::array<Checkpoint, 2>> m_checkpoints;
    std::vector<unsigned char> m_valid;
    std::size_t m_samePrefix = 0;
    std::size_t m_started = 0;
};

}  // namespace tarvelin
