// The prices of all levels.
#include "model/Cost.h"

#include <array>
#include <cmath>
#include <limits>

#include "model/ItemTable.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr std::size_t kLevels = std::numeric_limits<Byte>::max() + std::size_t{1};

struct LevelCost {
    Cost amount{};
    PerResource<FixedPoint> deduction{};
};

/// Filled once: every event of a run asks for prices.
using CostTable = PerItem<std::array<LevelCost, kLevels>>;

CostTable AllCosts() noexcept {
    CostTable table;
    for (const ItemRow& row : ItemTable()) {
        for (std::size_t level = 0; level < kLevels; ++level) {
            const double factor = CostFactor(row.growth, static_cast<double>(level));
            LevelCost& cost = table[row.item][level];
            ForEachResource([&](Resource resource) {
                cost.amount[resource] = std::trunc(row.baseCost[resource] * factor);
                cost.deduction[resource] = FixedPoint::FromDouble(cost.amount[resource]);
            });
        }
    }
    return table;
}

// Made before main: each event of a run looks something up, and a function's static would ask each
// time whether it has been made.
const CostTable kCosts = AllCosts();

}  // namespace

const Cost& CostOf(ItemId item, Byte level) {
    return kCosts[item][level].amount;
}

const PerResource<FixedPoint>& StockDeduction(ItemId item, Byte level) {
    return kCosts[item][level].deduction;
}

std::string GetUpgradecostString(ItemId item, Byte extStufe) {
    return "Kosten:  Met: " + WholeText(GetMetallKosten(item, extStufe)) +
           "  Kris: " + WholeText(GetKristallKosten(item, extStufe)) +
           "  Deut: " + WholeText(GetDeuteriumKosten(item, extStufe));
}

}  // namespace tarvelin
