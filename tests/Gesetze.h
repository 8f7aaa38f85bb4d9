// Laws that hold for every plan and its run, for the tests of random plans and for the fuzzer.
#pragma once

#include <string>
#include <string_view>

#include "plan/Plan.h"

namespace tarvelin {

/// What breaks a law, in a few words; empty where it holds.
using Befund = std::string;

/// All that a list shows and counts.
[[nodiscard]] std::string Zustand(const Bauliste& liste);

/// The whole result of a plan's run on a fresh planet, in every form in which it is printed.
[[nodiscard]] std::string Ergebnis(const Plan& plan);

/// A saved plan is loaded again with the same codes, inputs, texts and result. Says nothing about a
/// plan with texts that a file can't hold.
[[nodiscard]] Befund PruefeSpeichern(const Plan& plan);

/// After each row of the plan: another row, taken back, leaves the list as it was.
[[nodiscard]] Befund PruefeUndo(const Plan& plan);

/// A jump through time equals the same time in pieces in which no fraction is lost.
[[nodiscard]] Befund PruefeZeitsprung(const Plan& plan);

/// The books of a run, kept anew from the moments of its starts alone: the orders of a queue follow
/// each other; each stock is its start plus gains minus costs; `VerbauteRessourcen` is the sum of
/// the costs; levels are the orders that were finished; debts are told. Up to the end of the clock,
/// and to an order that starts in debt without any source of deuterium.
[[nodiscard]] Befund PruefeBuchhaltung(const Plan& plan);

/// The same run once more, on the planet that the first one left, gives the same.
[[nodiscard]] Befund PruefeWiederholung(const Plan& plan);

/// All of them.
[[nodiscard]] Befund PruefeGesetze(const Plan& plan);

/// Whether a profile gives this value back letter for letter: one line of at most 255 characters,
/// without blanks or quotes around, all of them in the code page.
[[nodiscard]] bool KommtZurueck(std::string_view wert);

}  // namespace tarvelin
