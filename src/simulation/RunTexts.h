// Texts about the orders of a run.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "simulation/RunTrace.h"

namespace tarvelin {

/// What held back the order of a row: the resource and the amount that was short, a queue and until
/// when, the missing level, the sleep window, or the row before it; the click buffer if nothing but
/// clicks came before. Empty for a row that never started, and for the first order if there is no
/// click buffer.
[[nodiscard]] std::string DelayText(const RunTrace& trace, std::size_t row);

/// The same in few words, for a place beside its symbol: "1.067 Kristall", "Bauschleife bis
/// 07:49:05", "Roboterfabrik 2", "Zeile 35", "Schlaf bis 07:00:00", "Klickpuffer 5 s".
[[nodiscard]] std::string WaitText(const RunTrace& trace, const StartEvent& start);

/// What it waits for, without how much or until when: "Kristall", "Bauschleife", "Roboterfabrik 2",
/// "Zeile 35", "Schlaf", "Klick".
[[nodiscard]] std::string WaitCauseText(const RunTrace& trace, const StartEvent& start);

/// What stands beside a symbol in a narrow table: "1.067", "Schleife", "Roboterfabrik 2", "Zeile
/// 35", "bis 07:00", "Klick".
[[nodiscard]] std::string BriefWaitText(const RunTrace& trace, const StartEvent& start);

/// Whether nothing but clicks held back the orders up to this one.
[[nodiscard]] bool WaitsForClick(const RunTrace& trace, const StartEvent& start);

/// The warning about a plan that outlasts the clock.
[[nodiscard]] std::string BeyondClockText();

/// "Metallmine 3", "Kleine Schildkuppel", or "80% 100% 50%", which has no number.
[[nodiscard]] std::string OrderText(const Order& order, int number);
[[nodiscard]] std::string OrderText(const StartEvent& start);
/// The same for other programs to read, with the name of the tooltip.
[[nodiscard]] std::string OrderKey(const Order& order, int number);

/// "02:13:05", from one day on with the days: "1 Tag 00:01:01", "3 Tage 00:00:00".
[[nodiscard]] std::string TimeSpanText(Long seconds);
/// The same with a sign: "-02:13:05", "±00:00:00".
[[nodiscard]] std::string SignedTimeSpanText(Long seconds);

/// "Bauschleife", "Werftschleife" or "Forschungsschleife"; empty for none.
[[nodiscard]] std::string_view QueueName(Queue queue);

}  // namespace tarvelin
