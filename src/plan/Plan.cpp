// The checks before a run.
#include "plan/Plan.h"

namespace tarvelin {

Planstand StandVon(const Plan& plan) {
    return {
        .Parameter = plan.Parameter, .Tags = plan.Liste.Tags(), .Schlafzeiten = plan.Schlafzeiten};
}

std::variant<Startbedingungen, Meldung> LiesStartbedingungen(const Plan& plan) {
    if (plan.Liste.Auftraege().IstLeer()) {
        return Meldung{.Text = "Die Bauliste ist leer...", .Titel = kAusnahmefehler};
    }
    const auto temperatur = LiesTemperatur(plan.Parameter);
    if (!temperatur) {
        return Meldung{.Text = "Keine gültige Temperatur eingegeben...", .Titel = kAusnahmefehler};
    }
    const auto start = ReadUniStartZeit(plan.Parameter);
    if (!start) {
        return Meldung{.Text = "Kein gültiges Datum eingegeben...", .Titel = kAusnahmefehler};
    }
    return Startbedingungen{.Speedfaktor = plan.Parameter.Speedfaktor(),
                            .Temperatur = *temperatur,
                            .KlickPuffer = plan.Parameter.KlickPuffer,
                            .StartDate = *start,
                            .Schlafzeiten = LiesSchlafzeiten(plan.Schlafzeiten)};
}

}  // namespace tarvelin
