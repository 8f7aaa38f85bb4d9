// The moves of a search.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "search/Random.h"
#include "search/SearchTask.h"

namespace tarvelin {

/// The current list, and the neighbor that the last move made of it.
class Neighborhood {
  public:
    /// The task must outlive it. The list has to keep the rules.
    Neighborhood(const SearchTask& task, std::vector<Order> orders, std::vector<bool> pinned);

    /// Makes a random move from the current list. The first row that differs; nothing if the move
    /// changes nothing or breaks a rule.
    [[nodiscard]] std::optional<std::size_t> Propose(Random& random);

    [[nodiscard]] std::span<const Order> Neighbor() const { return m_neighbor; }
    [[nodiscard]] const std::vector<Order>& Current() const { return m_orders; }
    [[nodiscard]] const std::vector<bool>& Pinned() const { return m_pinned; }

    /// Makes the neighbor the current list.
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
    /// The rows that aren't pinned.
    std::vector<std::size_t> m_free;
    /// Levels and numbers before each row, and after the last.
    std::vector<PerItem<Byte>> m_before;
    /// The same before each pinned row of the initial list.
    std::vector<PerItem<Byte>> m_beforePinned;
    /// The rows that the last move changed, `m_until` excluded.
    std::size_t m_from = 0;
    std::size_t m_until = 0;
};

}  // namespace tarvelin
