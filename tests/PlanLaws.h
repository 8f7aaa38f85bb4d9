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

/// Checks all laws, which are in the source file; the first finding.
[[nodiscard]] Finding CheckLaws(const Plan& plan);

/// Whether a profile gives a value back unchanged: one line of at most 255 characters of the code
/// page, without surrounding blanks or quotes.
[[nodiscard]] bool ComesBack(std::string_view value);

}  // namespace tarvelin
