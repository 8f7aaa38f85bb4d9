// The JSON of a plan and its result.
#include "export/RunReport.h"

#include "export/ReadableJson.h"
#include "model/ItemTable.h"
#include "simulation/RunTexts.h"

namespace tarvelin {

namespace {

using nlohmann::json;

json MessagesJson(const PlanRun& planRun) {
    json list = json::array();
    for (const Message& message : planRun.messages) {
        list.push_back({{"Text", message.text}, {"Titel", message.title}});
    }
    return list;
}

json RowsJson(const BuildList& buildList) {
    json list = json::array();
    for (const BuildListRow& row : buildList.Rows()) {
        list.push_back({{"Text", row.text},
                        {"Tag", row.Tag},
                        {"SubItems1", row.SubItems1},
                        {"SubItems2", row.SubItems2},
                        {"Farbe", static_cast<int>(row.SubItems2Color)}});
    }
    return list;
}

/// Maps each item code to `value(item)`.
template <class Value>
json ByCode(Value value) {
    json object = json::object();
    for (const ItemRow& row : ItemTable()) {
        object[std::string(row.ItemCode)] = value(row.item);
    }
    return object;
}

json SleepTableJson(const SleepTable& table) {
    json list = json::array();
    for (const SleepRow& row : table) {
        list.push_back({row.Startzeit, row.Endzeit});
    }
    return list;
}

json ScheduleJson(const Schedule& schedule) {
    json list = json::array();
    for (const ScheduleEntry& row : schedule) {
        list.push_back({{"Wochentag", row.Weekday()},
                        {"Uhrzeit", row.TimeOfDay()},
                        {"theText", row.theText()},
                        {"Tag", row.Tag()}});
    }
    return list;
}

/// Stocks, rates and energy of a state or of a point of its history.
template <class Economy>
void AppendEconomy(json& object, const Economy& economy) {
    AddResources(object, economy.stock);
    AddResources(object, economy.ProStunde, "ProStunde");
    object["EnergieProduktion"] = economy.EnergieProduktion;
    object["EnergieVerbrauch"] = economy.EnergieVerbrauch;
}

void AppendState(json& object, const GameState& state, const RunConditions& conditions) {
    AppendEconomy(object, state);
    object["secsgone"] = state.secsgone.Seconds();
    object["ProdFaktor"] = FourDecimalsText(state.ProdFaktor);
    object["VerbauteRessourcen"] = state.VerbauteRessourcen;
    object["Temperatur"] = conditions.Temperatur;
    object["Speedfaktor"] = conditions.Speedfaktor;
    object["GebaeudeFertigZeit"] = state.FertigZeit[Queue::Building].Seconds();
    object["WerftFertigZeit"] = state.FertigZeit[Queue::Shipyard].Seconds();
    object["ForschungFertigZeit"] = state.FertigZeit[Queue::Research].Seconds();
    object["Stufen"] = ByCode([&](ItemId item) { return state.Stufe[item]; });
}

void AppendTexts(json& object, const ResultTexts& texts) {
    object["LBL_Timegone"] = texts.LBL_Timegone;
    object["LBL_Met"] = texts.LBL_Met;
    object["LBL_Kris"] = texts.LBL_Kris;
    object["LBL_Deut"] = texts.LBL_Deut;
    object["LBL_ENergie"] = texts.LBL_ENergie;
    object["LBL_Punkte"] = texts.LBL_Punkte;
    object["LBL_Punkte_Hinweis"] = texts.LBL_Punkte_Hint;
}

json PointJson(const HistoryPoint& point, const RunConditions& conditions) {
    json object{{"Sekunde", point.time.Seconds()},
                {"Zeitpunkt", DateTimeText(conditions.WallClock(point.time))}};
    AppendEconomy(object, point);
    return object;
}

json HistoryOf(const RunTrace& trace) {
    json points = json::array();
    for (const HistoryPoint& point : trace.curve) {
        points.push_back(PointJson(point, trace.conditions));
    }
    json orders = json::array();
    for (const StartEvent& start : trace.starts) {
        orders.push_back({{"Zeile", start.row + 1},
                          {"Auftrag", OrderKey(start.order, start.number)},
                          {"Start", start.start.Seconds()},
                          {"Finish", start.finish.Seconds()},
                          {"Startzeit", DateTimeText(trace.conditions.WallClock(start.start))},
                          {"Fertigzeit", DateTimeText(trace.conditions.WallClock(start.finish))},
                          {"Schlange", QueueName(start.order.queue)},
                          {"Grund", DelayText(trace, start.row)}});
    }
    return {{"Punkte", points}, {"Auftraege", orders}};
}

}  // namespace

std::string RunJson(const PlanRun& planRun, bool withHistory) {
    const BuildList& list = planRun.plan.LV_Bauliste;
    json object{{"Meldungen", MessagesJson(planRun)},
                {"Geladen", planRun.loaded},
                {"Gelaufen", planRun.hasRun},
                {"Bauliste", RowsJson(list)},
                {"ListStufe", ByCode([&](ItemId item) { return list.Orders().ListStufe(item); })},
                {"ListFaktor", list.Orders().ListFaktor()},
                {"Schlafzeiten", SleepTableJson(planRun.plan.LV_Schlafzeiten)}};
    if (planRun.hasRun) {
        AppendState(object, planRun.run.state, planRun.run.conditions);
        AppendTexts(object, planRun.texts);
        object["LV_Bauzeiten"] = ScheduleJson(planRun.run.LV_Bauzeiten);
        if (withHistory) {
            object["Verlauf"] = HistoryOf(planRun.Trace());
        }
    }
    return ReadableJson(object);
}

}  // namespace tarvelin
