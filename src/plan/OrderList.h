// The orders of a plan and the counters of its items.
#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "plan/Order.h"

namespace tarvelin {

/// Orders are added and taken out at the end only, or all at once: an order's number is the count
/// of its item up to it, and what it needs stands above it.
class OrderList {
  public:
    static constexpr std::size_t kMaxSize = 254;

    [[nodiscard]] std::span<const Order> All() const { return {m_orders.data(), m_size}; }
    [[nodiscard]] std::size_t Size() const { return m_size; }
    [[nodiscard]] bool IsEmpty() const { return m_size == 0; }
    [[nodiscard]] bool IsFull() const { return m_size == kMaxSize; }

    /// Orders of an item in the list: the level or number that the last one reaches.
    [[nodiscard]] Byte ListStufe(ItemId item) const { return m_listStufe[item]; }
    /// The same for all items.
    [[nodiscard]] const PerItem<Byte>& ListStufe() const { return m_listStufe; }
    /// The mines' factors at the end of the list.
    [[nodiscard]] const MineFactors& ListFaktor() const { return m_listFaktor; }

    /// Only if the list isn't full.
    void Append(const Order& order);

    /// Takes the last order out. Only if the list isn't empty.
    void RemoveLast();

  private:
    std::array<Order, kMaxSize> m_orders{};
    std::size_t m_size = 0;
    PerItem<Byte> m_listStufe{};
    MineFactors m_listFaktor = kFullFactors;
};

}  // namespace tarvelin
