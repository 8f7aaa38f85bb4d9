// The moves of a search: lists that differ a little from the present one.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "search/Random.h"
#include "search/SearchTask.h"

namespace tarvelin {

/// The present list, and one move at a time away from it.
class Neighborhood {
  public:
    /// The task must outlive it. The list is by the rules.
    Neighborhood(const SearchTask& task, std::vector<Order> orders, std::vector<bool> pinned);

    /// Makes a move. The first row that differs from the present list; nothing if the move came to
    /// nothing or breaks a rule.
    [[nodiscard]] std::optional<std::size_t> Propose(Random& random);

    /// The list after the last move.
    [[nodiscard]] std::span<const Order> Neighbor() const { return m_neighbor; }
    [[nodiscard]] const std::vector<Order>& Current() const { return m_orders; }
    [[nodiscard]] const std::vector<bool>& Pinned() const { return m_pinned; }

    /// The list after the last move is the present one from now on.
    void Accept();

  private:
    [[nodiscard]] bool Reposition(Random& random);
    [[nodiscard]] bool InsertEconomy(Random& random);
    [[nodiscard]] bool RemoveEconomy(Random& random);
    [[nodiscard]] bool ReplaceEconomy(Random& random);
    void Rotate(std::size_t from, std::size_t middle, std::size_t until);
    void SwapRows(std::size_t a, std::size_t b);
    [[nodiscard]] bool KeepsRules() const;
    void RecountFrom(std::size_t row);

    const SearchTask* m_task;
    std::vector<Order> m_orders;
    std::vector<bool> m_pinned;
    std::vector<Order> m_neighbor;
    std::vector<bool> m_neighborPinned;
    /// The rows that may move.
    std::vector<std::size_t> m_free;
    /// The counters above each row, and behind the last.
    std::vector<PerItem<Byte>> m_before;
    /// What stood above each pinned row at the beginning.
    std::vector<PerItem<Byte>> m_beforePinned;
    /// From the first row that the last move changed to behind the last.
    std::size_t m_from = 0;
    std::size_t m_until = 0;
};

}  // namespace tarvelin
