// Moves rows, and checks the result against the rules.
#include "plan/ListEdit.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "plan/Rules.h"

namespace tarvelin {

namespace {

/// The refusal of an order that would break its rule after the orders above it.
std::optional<std::string_view> RuleBreach(const Order& order, const OrderList& above) {
    return order.kind == Order::Kind::Item ? Refusal(order.item, above) : std::nullopt;
}

/// Swaps each affected row with an unaffected one before it.
template <class Begin, class End>
void ShiftForward(Begin begin, End end) {
    for (auto row = std::next(begin); row != end; ++row) {
        if (row->affected && !std::prev(row)->affected) {
            std::iter_swap(std::prev(row), row);
        }
    }
}

}  // namespace

ListEdit::ListEdit(const BuildList& list) : m_list(&list) {
    const auto orders = list.Orders().All();
    m_rows.reserve(orders.size() + 1);
    for (std::size_t i = 0; i < orders.size(); ++i) {
        m_rows.push_back({.original = i, .order = orders[i]});
    }
}

void ListEdit::Mark(std::span<const std::size_t> rows) {
    for (const std::size_t row : rows) {
        m_rows[row].affected = true;
    }
}

void ListEdit::MoveUp(std::span<const std::size_t> rows) {
    Mark(rows);
    if (!m_rows.empty()) {
        ShiftForward(m_rows.begin(), m_rows.end());
    }
}

void ListEdit::MoveDown(std::span<const std::size_t> rows) {
    Mark(rows);
    if (!m_rows.empty()) {
        ShiftForward(m_rows.rbegin(), m_rows.rend());
    }
}

void ListEdit::MoveBefore(std::size_t target, std::span<const std::size_t> rows) {
    Mark(rows);
    const auto middle = m_rows.begin() + static_cast<std::ptrdiff_t>(target);
    std::stable_partition(m_rows.begin(), middle,
                          [](const DraftRow& row) { return !row.affected; });
    std::stable_partition(middle, m_rows.end(), [](const DraftRow& row) { return row.affected; });
}

void ListEdit::Remove(std::span<const std::size_t> rows) {
    if (rows.empty()) {
        return;
    }
    Mark(rows);
    std::erase_if(m_rows, [](const DraftRow& row) { return row.affected; });
    const std::size_t next = rows.back() + 1 - rows.size();
    if (!m_rows.empty()) {
        m_rows[std::min(next, m_rows.size() - 1)].affected = true;
    }
}

void ListEdit::Insert(std::size_t before, const Order& order) {
    m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(before),
                  {.original = std::nullopt, .order = order});
}

void ListEdit::Duplicate(std::span<const std::size_t> rows) {
    std::vector<DraftRow> copies;
    for (const std::size_t row : rows) {
        copies.push_back({.original = std::nullopt, .order = m_rows[row].order, .affected = true});
    }
    if (!rows.empty()) {
        m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(rows.back()) + 1, copies.begin(),
                      copies.end());
    }
}

std::vector<bool> ListEdit::RowsKeepingRules() const {
    std::vector<bool> keepsRules;
    OrderList above;
    for (const Order& order : m_list->Orders().All()) {
        keepsRules.push_back(!RuleBreach(order, above));
        above.Append(order);
    }
    return keepsRules;
}

std::optional<EditObjection> ListEdit::Objection() const {
    const std::vector<bool> keepsRules = RowsKeepingRules();
    OrderList above;
    for (const DraftRow& row : m_rows) {
        if (above.IsFull()) {
            return EditObjection{.text = ListFullMessage().text};
        }
        const auto breach = RuleBreach(row.order, above);
        if (breach && !row.original) {
            return EditObjection{.text = std::string(*breach)};
        }
        if (breach && keepsRules[*row.original]) {
            const BuildListRow& shown = m_list->Rows()[*row.original];
            return EditObjection{.text = "Zeile " + shown.text + " (" + shown.SubItems1 +
                                         "):" + std::string(*breach),
                                 .row = row.original};
        }
        above.Append(row.order);
    }
    return std::nullopt;
}

std::vector<Order> ListEdit::Orders() const {
    std::vector<Order> orders;
    orders.reserve(m_rows.size());
    std::ranges::transform(m_rows, std::back_inserter(orders), &DraftRow::order);
    return orders;
}

std::vector<std::size_t> ListEdit::Affected() const {
    std::vector<std::size_t> affected;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].affected) {
            affected.push_back(i);
        }
    }
    return affected;
}

}  // namespace tarvelin
