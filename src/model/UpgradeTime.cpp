// The four formulas. The sequence of their operations is part of the result.
#include "model/UpgradeTime.h"

namespace tarvelin {

double BuildingTime(const Cost& cost, const GameState& state, const RunConditions& conditions) {
    constexpr double kResourcesPerHour = 2500;
    return (1.0 / conditions.Speedfaktor) *
           ((cost[Resource::Kristall] + cost[Resource::Metall]) / kResourcesPerHour) *
           (1.0 / (1 + state.RoboterStufe())) * kSecondsPerHour;
}

double DeuteriumMineTime(const Cost& cost, const GameState& state,
                         const RunConditions& conditions) {
    return HalfEvenLong(BuildingTime(cost, state, conditions));
}

double UnitTime(const Cost& cost, const GameState& state, const RunConditions& conditions) {
    constexpr double kResourcesPerHour = 5000;
    return (1.0 / conditions.Speedfaktor) *
           ((cost[Resource::Kristall] + cost[Resource::Metall]) / kResourcesPerHour) *
           (2.0 / (1 + state.WerftStufe())) * kSecondsPerHour;
}

// The divisor is 1000 times the lab's level plus 1, not 1000 times (level plus 1).
double ResearchTime(const Cost& cost, const GameState& state, const RunConditions& conditions) {
    const Long divisor = 1000 * state.ForschungslaborStufe() + 1;
    return ((1.0 / conditions.Speedfaktor) * (cost[Resource::Kristall] + cost[Resource::Metall])) /
           divisor * kSecondsPerHour;
}

}  // namespace tarvelin
