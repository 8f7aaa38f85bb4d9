// Texts of the schedule.
#include "simulation/Schedule.h"

#include "model/ItemTable.h"

namespace tarvelin {

std::string ScheduleEntry::theText() const {
    if (order.kind == Order::Kind::Production) {
        const auto percent = [this](Resource resource) {
            return std::to_string(order.factors[resource] * 10);
        };
        return percent(Resource::Metall) + "% " + percent(Resource::Kristall) + "% " +
               percent(Resource::Deuterium) + "%";
    }
    const ItemRow& row = RowOf(order.item);
    std::string text(row.reportText);
    return row.traits.showsNumber ? text + std::to_string(number) : text;
}

std::string ScheduleEntry::VerzoegerungsGrund() const {
    const bool withReason = order.kind == Order::Kind::Item && RowOf(order.item).traits.showsReason;
    return withReason ? shortage.Text() : "";
}

std::string ScheduleEntry::Tag() const {
    const std::string tag = std::string(WeekdayLong(start)) + " " + DateTimeText(start);
    const std::string reason = VerzoegerungsGrund();
    return reason.empty() ? tag : tag + " | " + reason;
}

void AddBauzeit(DateTime StartDate, const StartEvent& start, Schedule& LV_Bauzeiten) {
    ScheduleEntry& entry = LV_Bauzeiten.emplace_back();
    entry.order = start.order;
    entry.number = start.number;
    entry.start = StartDate + start.start.Seconds();
    entry.shortage.Assign(start.shortage);
}

}  // namespace tarvelin
