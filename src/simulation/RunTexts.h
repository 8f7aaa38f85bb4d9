// What is told of the orders of a run, in words.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "simulation/RunTrace.h"

namespace tarvelin {

/// What held back the order of a row: the resource with the amount that was short, a queue and
/// until when, a level that was missing, the sleep window that moved it, or the row before it; the
/// click buffer, as long as nothing but clicks lay before it. Empty for the first order of a player
/// without a click buffer, and for a row that never started.
[[nodiscard]] std::string DelayText(const RunTrace& trace, std::size_t row);

/// What is told of a plan that goes beyond the clock.
[[nodiscard]] std::string BeyondClockText();

/// "Metallmine 3", "Kleine Schildkuppel", or "80% 100% 50%". `number` is that of an item.
[[nodiscard]] std::string OrderText(const Order& order, int number);
[[nodiscard]] std::string OrderText(const StartEvent& start);
/// The same as other programs read it, with the name that the hint over the picture has.
[[nodiscard]] std::string OrderKey(const Order& order, int number);

/// "02:13:05", with days in front from one on: "1 Tag 00:01:01", "3 Tage 00:00:00".
[[nodiscard]] std::string TimeSpanText(Long seconds);
/// The same with a sign: "-02:13:05", "±00:00:00".
[[nodiscard]] std::string SignedTimeSpanText(Long seconds);

/// "Bauschleife", "Werftschleife" or "Forschungsschleife"; empty for none.
[[nodiscard]] std::string_view QueueName(Queue queue);

}  // namespace tarvelin
