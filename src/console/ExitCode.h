// The exit codes of the console program.
#pragma once

namespace tarvelin {

inline constexpr int kGood = 0;
/// A plan can't be loaded, played, searched or written.
inline constexpr int kPlanFailed = 1;
inline constexpr int kWrongCall = 2;

}  // namespace tarvelin
