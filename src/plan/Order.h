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

/// An order, without a text.
struct Auftrag {
    enum class Art : std::uint8_t { Unbekannt, Item, Produktion };

    Art Was = Art::Unbekannt;
    Queue Queue = Queue::None;
    ItemId Item{};
    MineFactors Faktoren{};

    static Auftrag Fuer(ItemId item);
    static Auftrag Fuer(const MineFactors& faktoren);
    /// Of a `Tag`: an item code, or a production row with three whole factors from 0 to 10; any
    /// other text gives an unknown order of the queue that its first letter names.
    static Auftrag AusTag(std::string_view tag);

    /// The `Tag`: the item code, or "GX:8:10:5"; empty for an unknown order.
    [[nodiscard]] std::string Tag() const;

    friend bool operator==(const Auftrag&, const Auftrag&) = default;
};

inline constexpr std::size_t kAuftragsgroesse = 6;
static_assert(sizeof(Auftrag) <= kAuftragsgroesse);

/// Exact compare, with regard to case; nothing for any other text.
[[nodiscard]] std::optional<ItemId> ItemVonCode(std::string_view code);

/// The factors of a `Tag` that begins with "GX": its tokens 2, 3 and 4. Nothing if one of them is
/// no whole number from 0 to 10.
[[nodiscard]] std::optional<MineFactors> LiesMinenfaktoren(std::string_view tag);

}  // namespace tarvelin
