// Puts together the texts.
#include "simulation/StatusTexts.h"

#include <algorithm>
#include <iterator>

#include "model/ItemTable.h"
#include "simulation/RunTexts.h"

namespace tarvelin {

namespace {

std::string StockText(const RunTrace& trace, SimTime moment) {
    const HistoryPoint& point = PointAt(trace.curve, moment);
    const auto stock = StockAfter(point, std::max(Long{0}, moment - point.time));
    std::string text;
    for (const Resource resource : kResources) {
        text += "   " + std::string(kResourceNames[resource]) + ": " +
                std::to_string(stock[resource].WholePart()) + " (" +
                DecimalText(point.ProStunde[resource]) + "/h)";
    }
    const Long balance = LongSum(point.EnergieProduktion, -std::int64_t{point.EnergieVerbrauch});
    return text + "   Energie: " + std::to_string(balance) + " / " +
           std::to_string(point.EnergieProduktion);
}

std::string LevelsText(const HistoryPoint& point) {
    std::string text;
    for (const ItemRow& row : ItemTable()) {
        if (const Byte level = point.Stufe[row.item]; level > 0) {
            text +=
                (text.empty() ? "" : ", ") + std::string(row.name) + " " + std::to_string(level);
        }
    }
    return text;
}

}  // namespace

std::string ShortDateTimeText(DateTime time) {
    const std::string date = DateText(time);
    return std::string(WeekdayShort(time)) + " " + date.substr(0, date.rfind('.') + 1) + " " +
           TimeOfDayText(time);
}

std::string StatusText(const RunTrace& trace, SimTime moment) {
    return ShortDateTimeText(trace.conditions.WallClock(moment)) +
           "   Spielzeit: " + TimeSpanText(moment.Seconds()) + StockText(trace, moment) + "\n" +
           LevelsText(PointAt(trace.curve, moment));
}

const StartEvent* NextStart(const RunTrace& trace, DateTime now) {
    const auto next = std::ranges::find_if(trace.starts, [&](const StartEvent& start) {
        return trace.conditions.WallClock(start.start) >= now;
    });
    return next == trace.starts.end() ? nullptr : &*next;
}

std::string MessagesText(const RunTrace& trace) {
    std::vector<std::string> texts;
    if (trace.end.IsAtEndOfClock()) {
        texts.push_back(BeyondClockText());
    }
    std::ranges::transform(trace.messages, std::back_inserter(texts), &Message::text);
    std::string text = texts.empty() ? "" : texts.front();
    if (texts.size() == 2) {
        text += "\n" + texts.back();
    } else if (texts.size() > 2) {
        text += "\n... und " + std::to_string(texts.size() - 1) + " weitere";
    }
    return text;
}

}  // namespace tarvelin
