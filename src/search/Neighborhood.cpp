// Random moves, and the check that they keep the rules.
#include "search/Neighborhood.h"

#include <algorithm>
#include <array>
#include <utility>

#include "plan/OrderList.h"
#include "plan/Rules.h"

namespace tarvelin {

namespace {

/// The order decides which item a random number stands for.
std::vector<ItemId> EconomyByRank() {
    std::vector<ItemId> items;
    for (const ItemRow& row : ItemTable()) {
        if (row.IsEconomy()) {
            items.push_back(row.item);
        }
    }
    std::ranges::sort(items, {}, [](ItemId item) { return RowOf(item).traits.economyRank; });
    return items;
}

Order RandomEconomyOrder(Random& random) {
    static const std::vector<ItemId> items = EconomyByRank();
    return Order::Of(items[random.Below(items.size())]);
}

/// How many rows a move spans: half of them at most eight.
std::size_t Reach(Random& random, std::size_t highest) {
    constexpr std::size_t kNear = 8;
    return 1 + random.Below(random.OneIn(2) ? std::min(kNear, highest) : highest);
}

bool SameWithoutEconomy(const PerItem<Byte>& a, const PerItem<Byte>& b) {
    return std::ranges::all_of(ItemTable(), [&](const ItemRow& row) {
        return row.IsEconomy() || a[row.item] == b[row.item];
    });
}

}  // namespace

Neighborhood::Neighborhood(const SearchTask& task, std::vector<Order> orders,
                           std::vector<bool> pinned)
    : m_task(&task), m_orders(std::move(orders)), m_pinned(std::move(pinned)) {
    m_neighbor = m_orders;
    m_neighborPinned = m_pinned;
    RecountFrom(0);
    for (std::size_t i = 0; i < m_pinned.size(); ++i) {
        if (m_pinned[i]) {
            m_beforePinned.push_back(m_before[i]);
        }
    }
}

/// Updates `m_before` from a row on, and `m_free`.
void Neighborhood::RecountFrom(std::size_t row) {
    m_before.resize(m_orders.size() + 1);
    for (std::size_t i = row; i < m_orders.size(); ++i) {
        m_before[i + 1] = m_before[i];
        if (m_orders[i].kind == Order::Kind::Item) {
            ++m_before[i + 1][m_orders[i].item];
        }
    }
    m_free.clear();
    for (std::size_t i = m_task->headSize; i < m_orders.size(); ++i) {
        if (!m_pinned[i]) {
            m_free.push_back(i);
        }
    }
}

std::optional<std::size_t> Neighborhood::Propose(Random& random) {
    // Undoes the last move unless it was accepted.
    if (m_neighbor.size() == m_orders.size()) {
        std::copy(m_orders.begin() + static_cast<std::ptrdiff_t>(m_from),
                  m_orders.begin() + static_cast<std::ptrdiff_t>(m_until),
                  m_neighbor.begin() + static_cast<std::ptrdiff_t>(m_from));
    } else {
        m_neighbor = m_orders;
    }
    m_neighborPinned = m_pinned;
    m_from = m_until = 0;
    constexpr std::size_t kHundred = 100;
    constexpr std::size_t kReposition = 60;
    constexpr std::size_t kInsert = 75;
    constexpr std::size_t kRemove = 90;
    const std::size_t what =
        m_task->kind == SearchTask::Kind::Sequence ? 0 : random.Below(kHundred);
    const bool proposed = what < kReposition ? Reposition(random)
                          : what < kInsert   ? InsertEconomy(random)
                          : what < kRemove   ? RemoveEconomy(random)
                                             : ReplaceEconomy(random);
    return proposed && KeepsRules() ? std::optional(m_from) : std::nullopt;
}

/// Moves one order or a block of two to five, or swaps two orders.
bool Neighborhood::Reposition(Random& random) {
    constexpr std::size_t kBlock = 5;
    const std::size_t n = m_free.size();
    if (n < 2) {
        return false;
    }
    const std::size_t kind = random.Below(4);
    const std::size_t block =
        kind == 3 ? 2 + random.Below(std::min(kBlock, n - 1) > 2 ? std::min(kBlock, n - 1) - 1 : 1)
                  : 1;
    if (block >= n) {
        return false;
    }
    const std::size_t distance = Reach(random, n - block);
    const std::size_t from = random.Below(n - block - distance + 1);
    if (kind == 2) {
        SwapRows(from, from + distance);
    } else if (random.OneIn(2)) {
        Rotate(from, from + block, from + block + distance);
    } else {
        Rotate(from, from + distance, from + block + distance);
    }
    // Swapped equal orders are no change.
    while (m_from < m_until && m_neighbor[m_from] == m_orders[m_from]) {
        ++m_from;
    }
    while (m_from < m_until && m_neighbor[m_until - 1] == m_orders[m_until - 1]) {
        --m_until;
    }
    return m_from < m_until;
}

/// Rotates the free rows [from, until) so that those from `middle` on come first.
void Neighborhood::Rotate(std::size_t from, std::size_t middle, std::size_t until) {
    m_from = m_free[from];
    m_until = m_free[until - 1] + 1;
    for (std::size_t i = from; i < until; ++i) {
        const std::size_t source =
            i + (middle - from) < until ? i + (middle - from) : i - (until - middle);
        m_neighbor[m_free[i]] = m_orders[m_free[source]];
    }
}

void Neighborhood::SwapRows(std::size_t a, std::size_t b) {
    m_from = m_free[a];
    m_until = m_free[b] + 1;
    std::swap(m_neighbor[m_free[a]], m_neighbor[m_free[b]]);
}

bool Neighborhood::InsertEconomy(Random& random) {
    if (m_orders.size() >= OrderList::kMaxSize) {
        return false;
    }
    const std::size_t slot =
        m_task->headSize + random.Below(m_orders.size() - m_task->headSize + 1);
    const auto position = static_cast<std::ptrdiff_t>(slot);
    m_neighbor.insert(m_neighbor.begin() + position, RandomEconomyOrder(random));
    m_neighborPinned.insert(m_neighborPinned.begin() + position, false);
    m_from = slot;
    m_until = m_neighbor.size();
    return true;
}

/// Only what the goal doesn't require.
bool Neighborhood::RemoveEconomy(Random& random) {
    if (m_free.empty()) {
        return false;
    }
    const std::size_t slot = m_free[random.Below(m_free.size())];
    const Order& order = m_orders[slot];
    if (order.kind != Order::Kind::Item || !RowOf(order.item).IsEconomy() ||
        m_before.back()[order.item] <= m_task->minLevels[order.item]) {
        return false;
    }
    const auto position = static_cast<std::ptrdiff_t>(slot);
    m_neighbor.erase(m_neighbor.begin() + position);
    m_neighborPinned.erase(m_neighborPinned.begin() + position);
    m_from = slot;
    m_until = m_neighbor.size();
    return true;
}

/// Removes one and inserts another elsewhere.
bool Neighborhood::ReplaceEconomy(Random& random) {
    if (!RemoveEconomy(random)) {
        return false;
    }
    const std::size_t slot =
        m_task->headSize + random.Below(m_neighbor.size() - m_task->headSize + 1);
    const auto position = static_cast<std::ptrdiff_t>(slot);
    m_neighbor.insert(m_neighbor.begin() + position, RandomEconomyOrder(random));
    m_neighborPinned.insert(m_neighborPinned.begin() + position, false);
    m_from = std::min(m_from, slot);
    m_until = m_neighbor.size();
    return true;
}

/// Checks the changed rows alone; after an insertion or a removal that is every row below.
bool Neighborhood::KeepsRules() const {
    PerItem<Byte> levels = m_before[m_from];
    auto pinnedCount = static_cast<std::size_t>(
        std::count(m_neighborPinned.begin(),
                   m_neighborPinned.begin() + static_cast<std::ptrdiff_t>(m_from), true));
    const bool goal = m_task->kind == SearchTask::Kind::Goal;
    for (std::size_t i = m_from; i < m_until; ++i) {
        const Order& order = m_neighbor[i];
        if (goal && m_neighborPinned[i] &&
            !SameWithoutEconomy(levels, m_beforePinned[pinnedCount++])) {
            return false;
        }
        if (order.kind == Order::Kind::Item) {
            if (!IsAllowed(order.item, levels)) {
                return false;
            }
            ++levels[order.item];
        }
    }
    return true;
}

void Neighborhood::Accept() {
    m_orders = m_neighbor;
    m_pinned = m_neighborPinned;
    RecountFrom(m_from);
    m_from = m_until = 0;
}

}  // namespace tarvelin
