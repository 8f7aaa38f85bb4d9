// Levels that a goal requires and that a list reaches.
#include "search/SearchTask.h"

#include <algorithm>

#include "plan/Rules.h"

namespace tarvelin {

PerItem<Byte> WithPrerequisites(PerItem<Byte> goal) {
    // Prerequisites can have prerequisites.
    for (bool more = true; more;) {
        more = false;
        for (const ItemRow& row : ItemTable()) {
            if (goal[row.item] == 0) {
                continue;
            }
            for (const LevelRequirement& requirement : ListRequirements(row.item)) {
                more = more || goal[requirement.item] < requirement.minLevel;
                goal[requirement.item] = std::max(goal[requirement.item], requirement.minLevel);
            }
        }
    }
    return goal;
}

PerItem<Byte> FinalLevels(const std::vector<Order>& orders) {
    PerItem<Byte> levels{};
    for (const Order& order : orders) {
        if (order.kind == Order::Kind::Item) {
            ++levels[order.item];
        }
    }
    return levels;
}

}  // namespace tarvelin
