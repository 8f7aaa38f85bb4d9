// The JSON of a plan and its result.
#include "console/RunReport.h"

#include <nlohmann/json.hpp>

#include "model/ItemTable.h"
#include "simulation/RunTexts.h"

namespace tarvelin {

namespace {

using nlohmann::json;

json Meldungen(const PlanRun& lauf) {
    json liste = json::array();
    for (const Message& meldung : lauf.messages) {
        liste.push_back({{"Text", meldung.text}, {"Titel", meldung.title}});
    }
    return liste;
}

json Zeilen(const BuildList& bauliste) {
    json liste = json::array();
    for (const BuildListRow& zeile : bauliste.Rows()) {
        liste.push_back({{"Text", zeile.text},
                         {"Tag", zeile.Tag},
                         {"SubItems1", zeile.SubItems1},
                         {"SubItems2", zeile.SubItems2},
                         {"Farbe", static_cast<int>(zeile.SubItems2Color)}});
    }
    return liste;
}

/// An object from the item codes to what `wert` gives for each item.
template <class Wert>
json JeCode(Wert wert) {
    json objekt = json::object();
    for (const ItemRow& zeile : ItemTable()) {
        objekt[std::string(zeile.ItemCode)] = wert(zeile.item);
    }
    return objekt;
}

json Schlafzeiten(const SleepTable& tabelle) {
    json liste = json::array();
    for (const SleepRow& zeile : tabelle) {
        liste.push_back({zeile.Startzeit, zeile.Endzeit});
    }
    return liste;
}

json Zeittabelle(const Schedule& bauzeiten) {
    json liste = json::array();
    for (const ScheduleEntry& zeile : bauzeiten) {
        liste.push_back({{"Wochentag", zeile.Weekday()},
                         {"Uhrzeit", zeile.TimeOfDay()},
                         {"theText", zeile.theText()},
                         {"Tag", zeile.Tag()}});
    }
    return liste;
}

void FuegeZustandAn(json& objekt, const GameState& stand, const RunConditions& bedingungen) {
    objekt["secsgone"] = stand.secsgone.Seconds();
    objekt["Metall"] = FourDecimalsText(stand.stock[Resource::Metall]);
    objekt["Kristall"] = FourDecimalsText(stand.stock[Resource::Kristall]);
    objekt["Deuterium"] = FourDecimalsText(stand.stock[Resource::Deuterium]);
    objekt["ProdFaktor"] = FourDecimalsText(stand.ProdFaktor);
    objekt["MetallProStunde"] = FourDecimalsText(stand.ProStunde[Resource::Metall]);
    objekt["KristallProStunde"] = FourDecimalsText(stand.ProStunde[Resource::Kristall]);
    objekt["DeuteriumProStunde"] = FourDecimalsText(stand.ProStunde[Resource::Deuterium]);
    objekt["EnergieProduktion"] = stand.EnergieProduktion;
    objekt["EnergieVerbrauch"] = stand.EnergieVerbrauch;
    objekt["VerbauteRessourcen"] = stand.VerbauteRessourcen;
    objekt["Temperatur"] = bedingungen.Temperatur;
    objekt["Speedfaktor"] = bedingungen.Speedfaktor;
    objekt["GebaeudeFertigZeit"] = stand.FertigZeit[Queue::Building].Seconds();
    objekt["WerftFertigZeit"] = stand.FertigZeit[Queue::Shipyard].Seconds();
    objekt["ForschungFertigZeit"] = stand.FertigZeit[Queue::Research].Seconds();
    objekt["Stufen"] = JeCode([&](ItemId item) { return stand.Stufe[item]; });
}

void FuegeTexteAn(json& objekt, const ResultTexts& texte) {
    objekt["LBL_Timegone"] = texte.LBL_Timegone;
    objekt["LBL_Met"] = texte.LBL_Met;
    objekt["LBL_Kris"] = texte.LBL_Kris;
    objekt["LBL_Deut"] = texte.LBL_Deut;
    objekt["LBL_ENergie"] = texte.LBL_ENergie;
    objekt["LBL_Punkte"] = texte.LBL_Punkte;
    objekt["LBL_Punkte_Hinweis"] = texte.LBL_Punkte_Hint;
}

json Punkt(const HistoryPoint& punkt, const RunConditions& bedingungen) {
    return {{"Sekunde", punkt.time.Seconds()},
            {"Zeitpunkt", DateTimeText(bedingungen.WallClock(punkt.time))},
            {"Metall", FourDecimalsText(punkt.stock[Resource::Metall])},
            {"Kristall", FourDecimalsText(punkt.stock[Resource::Kristall])},
            {"Deuterium", FourDecimalsText(punkt.stock[Resource::Deuterium])},
            {"MetallProStunde", FourDecimalsText(punkt.ProStunde[Resource::Metall])},
            {"KristallProStunde", FourDecimalsText(punkt.ProStunde[Resource::Kristall])},
            {"DeuteriumProStunde", FourDecimalsText(punkt.ProStunde[Resource::Deuterium])},
            {"EnergieProduktion", punkt.EnergieProduktion},
            {"EnergieVerbrauch", punkt.EnergieVerbrauch}};
}

json VerlaufVon(const RunTrace& ablauf) {
    json punkte = json::array();
    for (const HistoryPoint& punkt : ablauf.curve) {
        punkte.push_back(Punkt(punkt, ablauf.conditions));
    }
    json auftraege = json::array();
    for (const StartEvent& start : ablauf.starts) {
        auftraege.push_back(
            {{"Zeile", start.row + 1},
             {"Auftrag", OrderKey(start.order, start.number)},
             {"Start", start.start.Seconds()},
             {"Finish", start.finish.Seconds()},
             {"Startzeit", DateTimeText(ablauf.conditions.WallClock(start.start))},
             {"Fertigzeit", DateTimeText(ablauf.conditions.WallClock(start.finish))},
             {"Schlange", QueueName(start.order.queue)},
             {"Grund", DelayText(ablauf, start.row)}});
    }
    return {{"Punkte", punkte}, {"Auftraege", auftraege}};
}

}  // namespace

std::string JsonText(const PlanRun& lauf, bool mitVerlauf) {
    const BuildList& liste = lauf.plan.LV_Bauliste;
    json objekt{{"Meldungen", Meldungen(lauf)},
                {"Geladen", lauf.loaded},
                {"Gelaufen", lauf.hasRun},
                {"Bauliste", Zeilen(liste)},
                {"ListStufe", JeCode([&](ItemId item) { return liste.Orders().ListStufe(item); })},
                {"ListFaktor", liste.Orders().ListFaktor()},
                {"Schlafzeiten", Schlafzeiten(lauf.plan.LV_Schlafzeiten)}};
    if (lauf.hasRun) {
        FuegeZustandAn(objekt, lauf.run.state, lauf.run.conditions);
        FuegeTexteAn(objekt, lauf.texts);
        objekt["LV_Bauzeiten"] = Zeittabelle(lauf.run.LV_Bauzeiten);
        if (mitVerlauf) {
            objekt["Verlauf"] = VerlaufVon(lauf.Trace());
        }
    }
    return objekt.dump(1);
}

}  // namespace tarvelin
