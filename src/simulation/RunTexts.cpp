// Texts for delays, orders and time spans.
#include "simulation/RunTexts.h"

#include <algorithm>
#include <cstdlib>

#include "model/ItemTable.h"
#include "simulation/Schedule.h"
#include "util/Nuetzliches.h"

namespace tarvelin {

namespace {

/// When the wait was over; the click buffer comes after it.
DateTime ReadyAt(const RunTrace& trace, const StartEvent& start) {
    return trace.conditions.WallClock(start.start + -std::int64_t{trace.conditions.KlickPuffer});
}

std::string LevelText(const LevelRequirement& missing) {
    return std::string(RowOf(missing.item).name) + " " + std::to_string(missing.minLevel);
}

/// The window whose end the order waited for, or else the one that held it back first.
const cSchlafzeit* WindowOf(const RunTrace& trace, const StartEvent& start) {
    const auto& sleepWindows = trace.conditions.Schlafzeiten;
    auto wanted = std::ranges::find(sleepWindows, ReadyAt(trace, start), &cSchlafzeit::Endzeit);
    if (wanted == sleepWindows.end()) {
        const DateTime sleepFree = trace.conditions.WallClock(start.sleepFreeStart);
        wanted = std::ranges::find_if(sleepWindows, [&](const cSchlafzeit& sleepWindow) {
            return sleepWindow.CheckifInside(sleepFree);
        });
    }
    return wanted == sleepWindows.end() ? nullptr : &*wanted;
}

std::string SleepText(const RunTrace& trace, const StartEvent& start) {
    const cSchlafzeit* const window = WindowOf(trace, start);
    return window == nullptr ? "Schlafzeit"
                             : "Schlafzeit " + TimeOfDayText(window->Startzeit()) + " bis " +
                                   TimeOfDayText(window->Endzeit());
}

/// Whether no order before the row waited for anything but clicks.
bool OnlyClicksBefore(const RunTrace& trace, std::size_t row) {
    return std::ranges::all_of(trace.starts, [&](const StartEvent& start) {
        return start.row >= row || start.delay.cause == DelayCause::None;
    });
}

std::string ClickText(const RunTrace& trace, const StartEvent& start) {
    if (!WaitsForClick(trace, start)) {
        return "wartete auf Zeile " + std::to_string(start.row);
    }
    return trace.conditions.KlickPuffer == 0
               ? ""
               : "Klickpuffer: " + std::to_string(trace.conditions.KlickPuffer) + " s";
}

std::string NamedOrder(const Order& order, int number, std::string_view name) {
    if (order.kind != Order::Kind::Item) {
        return ScheduleEntry{.order = order}.theText();
    }
    std::string text(name);
    return RowOf(order.item).traits.showsNumber ? text + " " + std::to_string(number) : text;
}

std::string DelayReasonText(const RunTrace& trace, const StartEvent& start) {
    const Delay& delay = start.delay;
    switch (delay.cause) {
        case DelayCause::None:
            return ClickText(trace, start);
        case DelayCause::Level:
            return "Es fehlte: " + LevelText(delay.missing);
        case DelayCause::FacilityUpgrade:
            return std::string(QueueName(delay.queue)) + ": Ausbau";
        case DelayCause::Deuterium:
            return "Es fehlte: Produktion von Deuterium";
        case DelayCause::Resource:
            return delay.shortage.Text();
        case DelayCause::Queue:
            return std::string(QueueName(delay.queue)) + " bis " +
                   TimeOfDayText(ReadyAt(trace, start));
        case DelayCause::Sleep:
            return SleepText(trace, start);
    }
    return "";
}

}  // namespace

std::string DelayText(const RunTrace& trace, std::size_t row) {
    const StartEvent* const start = trace.StartOf(row);
    if (start == nullptr) {
        return "";
    }
    // Nothing was left that could have opened the gate.
    return DelayReasonText(trace, *start) + (start->gateClosed ? " (bis zuletzt)" : "");
}

bool WaitsForClick(const RunTrace& trace, const StartEvent& start) {
    return start.delay.cause == DelayCause::None && OnlyClicksBefore(trace, start.row) &&
           (trace.conditions.KlickPuffer > 0 || start.row == 0);
}

std::string WaitText(const RunTrace& trace, const StartEvent& start) {
    const Delay& delay = start.delay;
    switch (delay.cause) {
        case DelayCause::None:
            if (!WaitsForClick(trace, start)) {
                return "Zeile " + std::to_string(start.row);
            }
            return trace.conditions.KlickPuffer == 0
                       ? ""
                       : "Klickpuffer " + std::to_string(trace.conditions.KlickPuffer) + " s";
        case DelayCause::Level:
            return LevelText(delay.missing);
        case DelayCause::Deuterium:
            return "Produktion von Deuterium";
        case DelayCause::Resource:
            return delay.shortage.AmountText();
        case DelayCause::Sleep: {
            const cSchlafzeit* const window = WindowOf(trace, start);
            return window == nullptr ? "Schlaf" : "Schlaf bis " + TimeOfDayText(window->Endzeit());
        }
        case DelayCause::FacilityUpgrade:
        case DelayCause::Queue:
            break;
    }
    return DelayReasonText(trace, start);
}

std::string WaitCauseText(const RunTrace& trace, const StartEvent& start) {
    switch (start.delay.cause) {
        case DelayCause::None:
            return WaitsForClick(trace, start) ? "Klick" : "Zeile " + std::to_string(start.row);
        case DelayCause::Resource:
            return std::string(
                kResourceNames[start.delay.shortage.ShortResource().value_or(Resource::Metall)]);
        case DelayCause::Queue:
        case DelayCause::FacilityUpgrade:
            return std::string(QueueName(start.delay.queue));
        case DelayCause::Sleep:
            return "Schlaf";
        case DelayCause::Level:
        case DelayCause::Deuterium:
            break;
    }
    return WaitText(trace, start);
}

std::string BriefWaitText(const RunTrace& trace, const StartEvent& start) {
    switch (start.delay.cause) {
        case DelayCause::Resource: {
            const std::string amount = start.delay.shortage.AmountText();
            return amount.substr(0, amount.find(' '));
        }
        case DelayCause::Queue:
        case DelayCause::FacilityUpgrade:
            return "Schleife";
        case DelayCause::Sleep: {
            const cSchlafzeit* const window = WindowOf(trace, start);
            if (window == nullptr) {
                break;
            }
            return "bis " + ShortTimeOfDayText(window->Endzeit());
        }
        default:
            break;
    }
    return WaitCauseText(trace, start);
}

std::string BeyondClockText() {
    return "Der Plan dauert länger, als die Uhr zeigen kann: was später als " +
           TimeSpanText(SimTime::Last().Seconds()) + " käme, steht bei diesem Zeitpunkt.";
}

std::string OrderText(const Order& order, int number) {
    return NamedOrder(order, number, RowOf(order.item).name);
}

std::string OrderKey(const Order& order, int number) {
    return NamedOrder(order, number, RowOf(order.item).HoverName());
}

std::string OrderText(const StartEvent& start) {
    return OrderText(start.order, start.number);
}

std::string TimeSpanText(Long seconds) {
    constexpr Long kDay = 86400;
    const Long days = seconds / kDay;
    return (days > 0 ? std::to_string(days) + (days == 1 ? " Tag " : " Tage ") : "") +
           FormatDuration(seconds % kDay, "s", "hh:mm:ss", "d");
}

std::string SignedTimeSpanText(Long seconds) {
    return (seconds < 0 ? "-" : seconds > 0 ? "+" : "±") + TimeSpanText(std::abs(seconds));
}

std::string_view QueueName(Queue queue) {
    switch (queue) {
        case Queue::Building:
            return "Bauschleife";
        case Queue::Shipyard:
            return "Werftschleife";
        case Queue::Research:
            return "Forschungsschleife";
        case Queue::None:
        case Queue::Size:
            break;
    }
    return "";
}

}  // namespace tarvelin
