// Laws that hold for every plan and its run, checked on random plans and by the fuzzer.
#pragma once

#include <string>
#include <string_view>

#include "plan/Plan.h"

namespace tarvelin {

/// How a law is broken, in a few words; empty if it holds.
using Finding = std::string;

/// All texts and counters of a list.
[[nodiscard]] std::string StateText(const BuildList& list);

/// The whole result of a plan's run, in every form in which it is printed.
[[nodiscard]] std::string ResultText(const Plan& plan);

/// A saved plan loads with the same codes, inputs, texts and result. Holds trivially for a plan
/// with texts that a file can't store.
[[nodiscard]] Finding CheckSaving(const Plan& plan);

/// After each row of the plan: adding another row and undoing it leaves the list as it was.
[[nodiscard]] Finding CheckUndo(const Plan& plan);

/// The books of a run balance: each order starts, and not before the previous one of its queue has
/// finished; each stock is what its history predicts, less the costs; negative stocks are reported;
/// the final levels are the counts of the list, and the spent resources the sum of the costs.
[[nodiscard]] Finding CheckBooks(const Plan& plan);

/// A run resumed from a copy at any step, or over a list with another tail, gives the same as one
/// from the beginning; the run that was copied doesn't change.
[[nodiscard]] Finding CheckResuming(const Plan& plan);

/// Passing a time at once equals passing it in pieces, if these lose no fraction.
[[nodiscard]] Finding CheckTimeJump(const Plan& plan);

/// Repeating a run in the same `LastRun` gives the same result.
[[nodiscard]] Finding CheckRepetition(const Plan& plan);

/// The curve of a run goes forward in time, and has for each moment what the run recorded last.
[[nodiscard]] Finding CheckCurve(const Plan& plan);

/// Edits anywhere in the list: an accepted edit breaks no rule that held before, a refused one
/// would; the list after it equals its rows dropped one by one; undo and redo give the same rows.
[[nodiscard]] Finding CheckEdits(const Plan& plan);

/// Comparing a run with itself finds nothing, and comparing two is symmetric.
[[nodiscard]] Finding CheckComparison(const Plan& plan);

/// Checks all laws; the first finding.
[[nodiscard]] Finding CheckLaws(const Plan& plan);

/// Whether a profile gives a value back unchanged: one line of at most 255 characters of the code
/// page, without surrounding blanks or quotes.
[[nodiscard]] bool ComesBack(std::string_view value);

}  // namespace tarvelin
