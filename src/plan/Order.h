// What a row of the build list orders.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/ItemId.h"
#include "model/Resource.h"

namespace tarvelin {

struct Order {
    enum class Kind : std::uint8_t { Unknown, Item, Production };

    Kind kind = Kind::Unknown;
    Queue queue = Queue::None;
    ItemId item{};
    MineFactors factors{};

    static Order Of(ItemId id);
    static Order Of(const MineFactors& tenths);
    /// Parses a `Tag`: an item code, or a production row with three whole factors from 0 to 10. Any
    /// other text gives an unknown order in the queue that its first letter names.
    static Order FromTag(std::string_view tag);

    /// The `Tag`: the item code, or "GX:8:10:5"; empty for an unknown order.
    [[nodiscard]] std::string Tag() const;

    friend bool operator==(const Order&, const Order&) = default;
};

inline constexpr std::size_t kOrderSize = 6;
static_assert(sizeof(Order) <= kOrderSize);

/// Case-sensitive; nothing for an unknown code.
[[nodiscard]] std::optional<ItemId> ItemFromCode(std::string_view code);

/// The factors of a `Tag` that begins with "GX": its tokens 2, 3 and 4. Nothing unless each is a
/// whole number from 0 to 10.
[[nodiscard]] std::optional<MineFactors> ParseMineFactors(std::string_view tag);

}  // namespace tarvelin
