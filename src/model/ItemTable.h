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

/// A level of another item that an item needs; level 0 asks for nothing.
struct LevelRequirement {
    ItemId item{};
    Byte minLevel = 0;

    friend bool operator==(const LevelRequirement&, const LevelRequirement&) = default;
};

/// All levels that an item needs.
using LevelRequirements = std::array<LevelRequirement, 3>;

/// What an item that costs deuterium needs of it beside its price.
enum class DeuteriumGate : std::uint8_t {
    /// A power plant or a deuterium mine.
    PlantOrMine,
    /// A rate that isn't 0, whatever the stock; a lack of it counts as a missing level.
    Production,
    /// The same; a lack of it counts as a queue at work.
    ProductionForNow,
};

/// How an item stands in the energy balance.
enum class EnergyRole : std::uint8_t { None, Mine, PowerPlant, Satellite };

/// What few items have.
struct ItemTraits {
    EnergyRole energyRole = EnergyRole::None;
    /// The queue that a facility serves. The facility can't be raised while that queue is at work,
    /// nor can what waits in it start while the facility is raised.
    Queue serves = Queue::None;
    /// It can start while the facility of its queue is raised.
    bool startsDuringUpgrade = false;
    DeuteriumGate deuteriumGate = DeuteriumGate::PlantOrMine;
    /// Its rows end with the level or number, and name the reason of a wait.
    bool showsNumber = true;
    bool showsReason = true;
    /// Its place, from 1, among the items that bring resources, energy or speed; 0 for the others.
    /// A search for a goal builds as many of them as pay off, and draws them by this number.
    Byte economyRank = 0;
    /// With so many in the build list no other one is allowed.
    Byte maxCount = std::numeric_limits<Byte>::max();
    /// Its name in the hint over its picture, where that isn't its `name`.
    std::string_view hoverName{};
};

/// The row of an item. The game has three sets of names, and so have we: in the build list, in the
/// build times and everywhere else.
struct ItemRow {
    ItemId item;
    /// `ItemCode`: the first letter is the order queue, G building, W shipyard, F research; the
    /// rest tells the item in it.
    std::string_view ItemCode;
    std::string_view listText;
    std::string_view reportText;
    std::string_view name;
    Queue queue;
    /// Of a unit, of the first level, or what the first level grows from.
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

/// `Tag` of a production row: this, and the factors of metal, crystal and deuterium in tenths,
/// each behind a colon.
inline constexpr std::string_view kProductionCode = "GX";

}  // namespace tarvelin
