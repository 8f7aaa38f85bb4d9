// The orders of a plan with the counters beside them, without a text.
#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "plan/Order.h"

namespace tarvelin {

/// Orders are only ever added at the end and only ever taken from the end, or all at once. So each
/// order's number is the count of its item down to it, and what an order needed stands above it.
class OrderList {
  public:
    static constexpr std::size_t kMaxSize = 254;

    [[nodiscard]] std::span<const Order> All() const { return {m_orders.data(), m_size}; }
    [[nodiscard]] std::size_t Size() const { return m_size; }
    [[nodiscard]] bool IsEmpty() const { return m_size == 0; }
    [[nodiscard]] bool IsFull() const { return m_size == kMaxSize; }

    /// Orders of an item: the level, or the number, that its last one reaches.
    [[nodiscard]] Byte ListStufe(ItemId item) const { return m_listStufe[item]; }
    /// The same of all items.
    [[nodiscard]] const PerItem<Byte>& ListStufe() const { return m_listStufe; }
    /// The factors that hold at the end of the list.
    [[nodiscard]] const MineFactors& ListFaktor() const { return m_listFaktor; }

    /// The list isn't full.
    void Append(const Order& order);

    /// Takes the last order out and puts back what it had changed. The list isn't empty.
    void RemoveLast();

  private:
    std::array<Order, kMaxSize> m_orders{};
    std::size_t m_size = 0;
    PerItem<Byte> m_listStufe{};
    MineFactors m_listFaktor = kFullFactors;
};

}  // namespace tarvelin
