// Orders and their `Tag`s.
#include "plan/Order.h"

#include <algorithm>

#include "model/ItemTable.h"
#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

Queue QueueOf(std::string_view tag) {
    switch (tag.empty() ? '\0' : tag.front()) {
        case 'G':
            return Queue::Building;
        case 'W':
            return Queue::Shipyard;
        case 'F':
            return Queue::Research;
        default:
            return Queue::None;
    }
}

}  // namespace

Order Order::Of(ItemId id) {
    return {.kind = Kind::Item, .queue = RowOf(id).queue, .item = id};
}

Order Order::Of(const MineFactors& tenths) {
    return {.kind = Kind::Production, .queue = Queue::Building, .factors = tenths};
}

Order Order::FromTag(std::string_view tag) {
    if (const auto known = ItemFromCode(tag)) {
        return Of(*known);
    }
    if (const auto parsed = ParseMineFactors(tag)) {
        return Of(*parsed);
    }
    return {.queue = QueueOf(tag)};
}

std::string Order::Tag() const {
    switch (kind) {
        case Kind::Item:
            return std::string(RowOf(item).ItemCode);
        case Kind::Production: {
            std::string tag(kProductionCode);
            for (const Byte factor : factors) {
                tag += ":" + std::to_string(factor);
            }
            return tag;
        }
        case Kind::Unknown:
            break;
    }
    return "";
}

std::optional<ItemId> ItemFromCode(std::string_view code) {
    const auto* const row = std::ranges::find(ItemTable(), code, &ItemRow::ItemCode);
    return row == ItemTable().end() ? std::nullopt : std::optional(row->item);
}

std::optional<MineFactors> ParseMineFactors(std::string_view tag) {
    if (!tag.starts_with(kProductionCode)) {
        return std::nullopt;
    }
    MineFactors factors{};
    for (std::size_t i = 0; i < factors.size(); ++i) {
        const auto value =
            ParseWholeNumber(GetToken(tag, static_cast<int>(i) + 2, ":"), 0, kFullFactor);
        if (!value) {
            return std::nullopt;
        }
        factors[i] = static_cast<Byte>(*value);
    }
    return factors;
}

}  // namespace tarvelin
