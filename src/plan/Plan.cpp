// The checks before a run.
#include "plan/Plan.h"

namespace tarvelin {

Planstand StandVon(const Plan& plan) {
    return {
        .Parameter = plan.Parameter, .Tags = plan.Liste.Tags(), .Schlafzeiten = plan.Schlafzeiten};
}

std::variant<RunConditions, Message> LiesStartbedingungen(const Plan& plan) {
    if (plan.Liste.Auftraege().IstLeer()) {
        return Message{.text = "Die Bauliste ist leer...", .title = kBadInputTitle};
    }
    const auto temperatur = LiesTemperatur(plan.Parameter);
    if (!temperatur) {
        return Message{.text = "Keine gültige Temperatur eingegeben...", .title = kBadInputTitle};
    }
    const auto start = ReadUniStartZeit(plan.Parameter);
    if (!start) {
        return Message{.text = "Kein gültiges Datum eingegeben...", .title = kBadInputTitle};
    }
    return RunConditions{.Speedfaktor = plan.Parameter.Speedfaktor(),
                         .Temperatur = *temperatur,
                         .KlickPuffer = plan.Parameter.KlickPuffer,
                         .StartDate = *start,
                         .Schlafzeiten = LiesSchlafzeiten(plan.Schlafzeiten)};
}

}  // namespace tarvelin
