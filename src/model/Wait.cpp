// Waits for gates, resources, queues and sleep windows.
#include "model/Wait.h"

#include <algorithm>

#include "model/Cost.h"

namespace tarvelin {

namespace {

/// The first gate that is closed, and the delay that it causes.
struct GateCheck {
    GateValue value = GateValue::Open;
    Delay delay;
};

const LevelRequirement* MissingLevel(const ItemRow& item, const GameState& state) {
    for (const LevelRequirement& requirement : item.requirements) {
        if (state.GetStufe(requirement.item) < requirement.minLevel) {
            return &requirement;
        }
    }
    return nullptr;
}

GateValue CheckDeuteriumGate(DeuteriumGate gate, const GameState& state) {
    if (gate == DeuteriumGate::PlantOrMine) {
        return state.GetStufe(ItemId::SKW) == 0 && state.GetStufe(ItemId::DeutMine) == 0
                   ? GateValue::NoDeuteriumSource
                   : GateValue::Open;
    }
    if (state.DeuteriumProStunde() != FixedPoint()) {
        return GateValue::Open;
    }
    return gate == DeuteriumGate::Production ? GateValue::Prerequisite : GateValue::ForNow;
}

GateCheck CheckGates(const ItemRow& item, const Cost& cost, const GameState& state) {
    if (state.IsUpgrading(item.queue) && !item.traits.startsDuringUpgrade) {
        return {GateValue::Prerequisite,
                {.cause = DelayCause::FacilityUpgrade, .queue = item.queue}};
    }
    if (const LevelRequirement* const missing = MissingLevel(item, state)) {
        return {GateValue::Prerequisite, {.cause = DelayCause::Level, .missing = *missing}};
    }
    if (cost[Resource::Deuterium] <= 0) {
        return {};
    }
    const GateValue gate = CheckDeuteriumGate(item.traits.deuteriumGate, state);
    if (gate == GateValue::Open) {
        return {};
    }
    return {gate, {.cause = DelayCause::Deuterium}};
}

/// What is short, and for how long. Separate scalars, not a `Shortage`: copying a struct that was
/// just written field by field stalls on store forwarding.
struct ResourceWait {
    Long seconds = 0;
    Shortage::Kind kind = Shortage::Kind::None;
    double missingAmount = 0;
};

constexpr PerResource<Shortage::Kind> kKinds{
    {Shortage::Kind::Metall, Shortage::Kind::Kristall, Shortage::Kind::Deuterium}};

/// Seconds until a missing amount is produced. Without production a fixed long wait stands for
/// "never"; the order is timed again at each event before it ends.
Long SecondsUntil(double missing, double perSecond) {
    constexpr Long kEndless = 1'000'000'000;
    if (perSecond <= 0) {
        return kEndless;
    }
    return Saturate<Long>(Rounding::Cut(1 + missing / perSecond));
}

/// A quick test in whole numbers; false where these can't be sure.
bool IsSurelyEnough(FixedPoint stock, FixedPoint deduction) {
    constexpr FixedPoint kExact = FixedPoint::FromWhole(std::int64_t{1} << 38U);
    return deduction <= stock && deduction < kExact;
}

/// The longest wait for a resource; on a tie metal goes before crystal and crystal before
/// deuterium.
ResourceWait LongestResourceWait(const ItemRow& item, const Cost& cost, const GameState& state) {
    const PerResource<FixedPoint>& deduction = StockDeduction(item.item, state.GetStufe(item.item));
    ResourceWait longest;
    ForEachResource([&](Resource resource) __attribute__((always_inline)) {
        if (IsSurelyEnough(state.stock[resource], deduction[resource])) {
            return;
        }
        const double missing = cost[resource] - state.stock[resource].ToDouble();
        if (missing <= 0) {
            return;
        }
        const Long seconds = SecondsUntil(missing, state.perSecond[resource]);
        if (seconds > longest.seconds) {
            longest = {.seconds = seconds, .kind = kKinds[resource], .missingAmount = missing + 1};
        }
    });
    return longest;
}

/// Extends a wait that ends in a sleep window to the window's end. Each window is checked once, in
/// the sequence of the table, against the wait that the windows before it left.
Long AfterSleep(Long waitSeconds, SimTime now, const RunConditions& conditions) {
    for (const cSchlafzeit& sleepWindow : conditions.Schlafzeiten) {
        if (sleepWindow.CheckifInside(conditions.WallClock(now + waitSeconds))) {
            waitSeconds = sleepWindow.SecondsFrom_Insert_ToEnd(conditions.WallClock(now));
        }
    }
    return waitSeconds;
}

}  // namespace

Wait GetTimeUntilUpgradeIsPossible(const ItemRow& item, const GameState& state,
                                   const RunConditions& conditions) {
    const Cost& cost = CostOf(item.item, state.GetStufe(item.item));
    const Queue served = item.traits.serves;
    const Long untilFree = state.FertigZeit[served] - state.secsgone;
    const GateCheck gate = CheckGates(item, cost, state);
    if (gate.value != GateValue::Open) {
        return {.seconds = std::max(static_cast<Long>(gate.value), untilFree),
                .shortage = {.kind = Shortage::Kind::Unstated},
                .delay = gate.delay};
    }
    const ResourceWait wait = LongestResourceWait(item, cost, state);
    const Long sleepFree = std::max(wait.seconds, untilFree);
    const Long afterSleep = AfterSleep(sleepFree, state.secsgone, conditions);
    Delay delay;
    if (afterSleep != sleepFree) {
        delay.cause = DelayCause::Sleep;
    } else if (untilFree > wait.seconds) {
        delay = {.cause = DelayCause::Queue, .queue = served};
    } else if (wait.seconds > 0) {
        delay.cause = DelayCause::Resource;
    }
    return {.seconds = afterSleep == sleepFree ? sleepFree : std::max(afterSleep, untilFree),
            .shortage = {.kind = wait.kind, .missingAmount = wait.missingAmount},
            .delay = delay,
            .sleepFreeSeconds = sleepFree};
}

}  // namespace tarvelin
