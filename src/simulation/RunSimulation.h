// The run of a plan through simulated time.
#pragma once

#include "model/Bauzeit.h"
#include "model/Startplanet.h"
#include "plan/Plan.h"
#include "util/Meldung.h"

namespace tarvelin {

/// What a run leaves behind: the shared state with the items, and the table of build times. It
/// stands until the next run or reset.
struct Lauf {
    Startplanet Planet;
    Bauzeiten LV_Bauzeiten;

    /// The state before the first event of a run. A temperature that can't be used leaves the
    /// former one.
    void ResetSimulation(const Startparameter& parameter);
};

/// Whether a run got past its checks of the inputs.
enum class Laufausgang { AnEingabenGescheitert, Gelaufen };

/// Plays the plan from its first order to its last. `silent` keeps quiet about an empty list; all
/// other messages come anyway. A run that fails at an input changes nothing of `lauf` but the
/// speed factor and the sleep windows. Of the plan it changes nothing but the form of the start
/// date's day and month, padded to two digits.
Laufausgang RunSimulation(Plan& plan, Lauf& lauf, Meldungsausgabe& meldungen, bool silent);

/// The two halves of a run, for who shows the state between them: the checks of the inputs with the
/// reset, and if they were passed the way from the first order to the last.
Laufausgang BeginneLauf(Plan& plan, Lauf& lauf, Meldungsausgabe& meldungen, bool silent);
void FuehreLaufDurch(const Plan& plan, Lauf& lauf, Meldungsausgabe& meldungen);

}  // namespace tarvelin
