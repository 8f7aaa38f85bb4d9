// The table of the twenty items: all that is special about each.
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <string_view>

#include "model/CostGrowth.h"
#include "model/ItemId.h"
#include "model/UpgradeTime.h"

namespace tarvelin {

/// The least level of another item that an item needs; 0 asks for nothing.
struct LevelRequirement {
    ItemId item{};
    Byte minLevel = 0;

    friend bool operator==(const LevelRequirement&, const LevelRequirement&) = default;
};

using LevelRequirements = std::array<LevelRequirement, 3>;

/// What an item that costs deuterium needs besides its price.
enum class DeuteriumGate : std::uint8_t {
    /// A power plant or a deuterium mine.
    PlantOrMine,
    /// A production rate other than 0, whatever the stock; without it the item waits as for a
    /// missing level.
    Production,
    /// The same, with the shorter wait of `GateValue::ForNow`.
    ProductionForNow,
};

/// The part that an item plays in the energy balance.
enum class EnergyRole : std::uint8_t { None, Mine, PowerPlant, Satellite };

/// What sets few items apart from the others.
struct ItemTraits {
    EnergyRole energyRole = EnergyRole::None;
    /// The queue that this facility serves. The facility can't be upgraded while the queue is busy,
    /// and the queue's orders can't start during the upgrade.
    Queue serves = Queue::None;
    /// Exempt from that: starts even while the facility of its queue is being upgraded.
    bool startsDuringUpgrade = false;
    DeuteriumGate deuteriumGate = DeuteriumGate::PlantOrMine;
    /// Whether its texts end with the level or number.
    bool showsNumber = true;
    /// Whether its row in the schedule names the reason for a wait.
    bool showsReason = true;
    /// Its place, from 1, among the items that bring resources, energy or speed; 0 for all others.
    /// A search for a goal builds as many of these as pay off, and numbers them like this when it
    /// draws one at random.
    Byte economyRank = 0;
    /// With exactly this many in the build list no other one is allowed.
    Byte maxCount = std::numeric_limits<Byte>::max();
    /// Its name in the tooltip of its picture, where that differs from `name`.
    std::string_view hoverName{};
};

/// All about one item. The game spells its name in three ways: in the build list, in the schedule
/// and everywhere else.
struct ItemRow {
    ItemId item;
    /// The first letter names the order queue (G building, W shipyard, F research), the rest the
    /// item.
    std::string_view ItemCode;
    std::string_view listText;
    std::string_view reportText;
    std::string_view name;
    Queue queue;
    /// The price of a unit, or what `growth` multiplies for each level.
    Cost baseCost;
    CostGrowth growth;
    UpgradeTimeFormula* upgradeTime;
    LevelRequirements requirements;
    ItemTraits traits;

    [[nodiscard]] constexpr bool IsEconomy() const { return traits.economyRank > 0; }
    [[nodiscard]] constexpr std::string_view HoverName() const {
        return traits.hoverName.empty() ? name : traits.hoverName;
    }
};

[[nodiscard]] const PerItem<ItemRow>& ItemTable();

[[nodiscard]] inline const ItemRow& RowOf(ItemId item) {
    return ItemTable()[item];
}

/// The `Tag` of a production row is this code and the factors of metal, crystal and deuterium in
/// tenths, each after a colon.
inline constexpr std::string_view kProductionCode = "GX";

}  // namespace tarvelin
