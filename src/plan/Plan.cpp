// Snapshots, and the checks before a run.
#include "plan/Plan.h"

namespace tarvelin {

PlanSnapshot SnapshotOf(const Plan& plan) {
    const auto orders = plan.LV_Bauliste.Orders().All();
    return {.parameters = plan.parameters,
            .orders = {orders.begin(), orders.end()},
            .Schlafzeiten = plan.LV_Schlafzeiten};
}

std::variant<RunConditions, Message> ParseRunConditions(const Plan& plan) {
    if (plan.LV_Bauliste.Orders().IsEmpty()) {
        return Message{.text = "Die Bauliste ist leer...", .title = kBadInputTitle};
    }
    const auto temperature = ParseTemperature(plan.parameters);
    if (!temperature) {
        return Message{.text = "Keine gültige Temperatur eingegeben...", .title = kBadInputTitle};
    }
    const auto start = ReadUniStartZeit(plan.parameters);
    if (!start) {
        return Message{.text = "Kein gültiges Datum eingegeben...", .title = kBadInputTitle};
    }
    return RunConditions{.Speedfaktor = plan.parameters.Speedfaktor(),
                         .Temperatur = *temperature,
                         .KlickPuffer = plan.parameters.KlickPuffer,
                         .StartDate = *start,
                         .Schlafzeiten = ParseSleepTable(plan.LV_Schlafzeiten)};
}

}  // namespace tarvelin
