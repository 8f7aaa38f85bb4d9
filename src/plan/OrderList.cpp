// The counters of the list.
#include "plan/OrderList.h"

#include <algorithm>

namespace tarvelin {

void OrderList::Append(const Order& order) {
    m_orders[m_size++] = order;
    if (order.kind == Order::Kind::Item) {
        ++m_listStufe[order.item];
    } else if (order.kind == Order::Kind::Production) {
        m_listFaktor = order.factors;
    }
}

void OrderList::RemoveLast() {
    const Order last = m_orders[--m_size];
    if (last.kind == Order::Kind::Item) {
        --m_listStufe[last.item];
    } else if (last.kind == Order::Kind::Production) {
        const auto remaining = All();
        const auto previous = std::ranges::find(remaining.rbegin(), remaining.rend(),
                                                Order::Kind::Production, &Order::kind);
        m_listFaktor = previous == remaining.rend() ? kFullFactors : previous->factors;
    }
}

}  // namespace tarvelin
