// Laws that hold for every plan and its run, for the tests of random plans and for the fuzzer.
#pragma once

#include <string>
#include <string_view>

#include "plan/Plan.h"

namespace tarvelin {

/// What breaks a law, in a few words; empty where it holds.
using Finding = std::string;

/// All that a list shows and counts.
[[nodiscard]] std::string StateText(const BuildList& list);

/// The whole result of a plan's run on a fresh planet, in every form in which it is printed.
[[nodiscard]] std::string ResultText(const Plan& plan);

/// A saved plan is loaded again with the same codes, inputs, texts and result. Says nothing about a
/// plan with texts that a file can't hold.
[[nodiscard]] Finding CheckSaving(const Plan& plan);

/// After each row of the plan: another row, taken back, leaves the list as it was.
[[nodiscard]] Finding CheckUndo(const Plan& plan);

/// The books of a run: each order starts, and none within the one before it in its queue; each
/// stock is what the history tells for that moment, less the costs; debts are told; at the end
/// levels are the orders of the list, and what was spent is the sum of the costs.
[[nodiscard]] Finding CheckBooks(const Plan& plan);

/// A run goes on from a copy at any step, or over a list with another end, as one from the
/// beginning does; the run that was copied stays as it was.
[[nodiscard]] Finding CheckResuming(const Plan& plan);

/// A jump through time equals the same time in pieces in which no fraction is lost.
[[nodiscard]] Finding CheckTimeJump(const Plan& plan);

/// The same run once more, in the place of the first one, gives the same.
[[nodiscard]] Finding CheckRepetition(const Plan& plan);

/// The curve of a run goes forward in time, and shows at each moment what the run recorded last for
/// it.
[[nodiscard]] Finding CheckCurve(const Plan& plan);

/// Edits anywhere in the list: one that is let be leaves no row that breaks its rule and hasn't
/// done so before, one that is refused would; the list behind it is its rows dropped anew; taken
/// back and done again it gives the same rows.
[[nodiscard]] Finding CheckEdits(const Plan& plan);

/// A plan's run is no different from itself, and another one differs from it as it does from that.
[[nodiscard]] Finding CheckComparison(const Plan& plan);

/// All of them.
[[nodiscard]] Finding CheckLaws(const Plan& plan);

/// Whether a profile gives this value back letter for letter: one line of at most 255 characters,
/// without blanks or quotes around, all of them in the code page.
[[nodiscard]] bool ComesBack(std::string_view value);

}  // namespace tarvelin
