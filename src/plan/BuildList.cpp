// Adding and removing rows, and making their texts.
#include "plan/BuildList.h"

#include <algorithm>
#include <cstdint>

#include "model/Energy.h"
#include "model/ItemTable.h"
#include "model/Mines.h"
#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

std::string ItemText(ItemId item, Byte number) {
    const ItemRow& row = RowOf(item);
    std::string text(row.listText);
    return row.traits.showsNumber ? text + std::to_string(number) : text;
}

std::string ProductionText(const MineFactors& factors) {
    const auto percent = [&](Resource resource) {
        return std::to_string(10 * factors[resource]) + "%";
    };
    return "M:" + percent(Resource::Metall) + " K:" + percent(Resource::Kristall) +
           " D:" + percent(Resource::Deuterium);
}

/// The list text of the last order.
std::string ListText(const OrderList& list) {
    const Order& last = list.All().back();
    return last.kind == Order::Kind::Item ? ItemText(last.item, list.ListStufe(last.item))
                                          : ProductionText(last.factors);
}

}  // namespace

std::optional<Message> BuildList::AddItem(ItemId item, const RunConditions& conditions) {
    return Append(Order::Of(item), RowOf(item).ItemCode, conditions);
}

std::optional<Message> BuildList::AddProduction(const MineFactors& factors,
                                                const RunConditions& conditions) {
    const Order order = Order::Of(factors);
    return Append(order, order.Tag(), conditions);
}

bool BuildList::Replay(std::string_view tag, const RunConditions& conditions) {
    const Order order = Order::FromTag(tag);
    return order.kind != Order::Kind::Unknown && !Append(order, tag, conditions);
}

// The order comes first, as the factor text includes it.
std::optional<Message> BuildList::Append(const Order& order, std::string_view tag,
                                         const RunConditions& conditions) {
    if (m_orders.IsFull()) {
        return ListFullMessage();
    }
    m_orders.Append(order);
    BuildListRow& row = m_rows.emplace_back();
    row.Tag = tag;
    row.SubItems1 = ListText(m_orders);
    row.SubItems2 = GetProdfaktorText(m_orders, conditions);
    RenumberBauliste();
    return std::nullopt;
}

void BuildList::RenumberBauliste() {
    BuildListRow& last = m_rows.back();
    last.text = std::to_string(m_rows.size());
    last.SubItems2Color = last.SubItems2 == "1,00" ? TextColor::Black : TextColor::Red;
}

void BuildList::RemoveLast() {
    if (!m_rows.empty()) {
        m_orders.RemoveLast();
        m_rows.pop_back();
    }
}

void BuildList::Clear() {
    *this = BuildList();
}

void BuildList::SetOrders(std::span<const Order> orders, const RunConditions& conditions) {
    Clear();
    for (const Order& order : orders) {
        static_cast<void>(Append(order, order.Tag(), conditions));
    }
}

Message ListFullMessage() {
    return {.text = "Die Bauliste ist voll: mehr als 254 Einträge sind nicht möglich...",
            .title = kBadInputTitle};
}

std::string GetProdfaktorText(const OrderList& list, const RunConditions& conditions) {
    const auto needOf = [&](Resource resource, ItemId mine) {
        return GetEnergieVerbrauch(resource, list.ListStufe(mine), list.ListFaktor()[resource]);
    };
    const Long need = HalfEvenLong(needOf(Resource::Deuterium, ItemId::DeutMine) +
                                   needOf(Resource::Kristall, ItemId::KrisMine) +
                                   needOf(Resource::Metall, ItemId::MetMine));
    const auto production = [&](ItemId source) {
        return GetProduktion(source, list.ListStufe(source), conditions.Temperatur);
    };
    const Long supply =
        HalfEvenLong((production(ItemId::Solsats) + production(ItemId::SKW)).ToDouble());
    constexpr int kDecimals = 2;
    constexpr double kHundred = 100;
    const double share = need == 0 ? 1.0 : static_cast<double>(supply) / need;
    const auto hundredths = std::min(Rounding::HalfEven(share * kHundred), std::int64_t{100});
    const FixedPoint factor = FixedPoint::FromRaw(hundredths * (FixedPoint::kUnit / 100));
    return PadDecimals(DecimalText(factor), kDecimals);
}

}  // namespace tarvelin
