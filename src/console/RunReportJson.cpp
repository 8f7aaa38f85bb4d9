// The JSON of a plan and its result.
#include "console/RunReport.h"

#include <nlohmann/json.hpp>

#include "model/ItemTable.h"
#include "simulation/RunTexts.h"

namespace tarvelin {

namespace {

using nlohmann::json;

json Meldungen(const Planlauf& lauf) {
    json liste = json::array();
    for (const Message& meldung : lauf.Meldungen) {
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

json Zeittabelle(const Bauzeiten& bauzeiten) {
    json liste = json::array();
    for (const Bauzeit& zeile : bauzeiten) {
        liste.push_back({{"Wochentag", zeile.Wochentag()},
                         {"Uhrzeit", zeile.Uhrzeit()},
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

void FuegeTexteAn(json& objekt, const Ergebnistexte& texte) {
    objekt["LBL_Timegone"] = texte.LBL_Timegone;
    objekt["LBL_Met"] = texte.LBL_Met;
    objekt["LBL_Kris"] = texte.LBL_Kris;
    objekt["LBL_Deut"] = texte.LBL_Deut;
    objekt["LBL_ENergie"] = texte.LBL_ENergie;
    objekt["LBL_Punkte"] = texte.LBL_Punkte;
    objekt["LBL_Punkte_Hinweis"] = texte.LBL_Punkte_Hinweis;
}

json Punkt(const Verlaufspunkt& punkt, const RunConditions& bedingungen) {
    return {{"Sekunde", punkt.Zeit.Seconds()},
            {"Zeitpunkt", DateTimeText(bedingungen.WallClock(punkt.Zeit))},
            {"Metall", FourDecimalsText(punkt.Vorrat[Resource::Metall])},
            {"Kristall", FourDecimalsText(punkt.Vorrat[Resource::Kristall])},
            {"Deuterium", FourDecimalsText(punkt.Vorrat[Resource::Deuterium])},
            {"MetallProStunde", FourDecimalsText(punkt.ProStunde[Resource::Metall])},
            {"KristallProStunde", FourDecimalsText(punkt.ProStunde[Resource::Kristall])},
            {"DeuteriumProStunde", FourDecimalsText(punkt.ProStunde[Resource::Deuterium])},
            {"EnergieProduktion", punkt.EnergieProduktion},
            {"EnergieVerbrauch", punkt.EnergieVerbrauch}};
}

json VerlaufVon(const Ablauf& ablauf) {
    json punkte = json::array();
    for (const Verlaufspunkt& punkt : ablauf.Kurve) {
        punkte.push_back(Punkt(punkt, ablauf.Bedingungen));
    }
    json auftraege = json::array();
    for (const Startereignis& start : ablauf.Starts) {
        auftraege.push_back(
            {{"Zeile", start.Zeile + 1},
             {"Auftrag", Auftragsschluessel(start.Order, start.Nummer)},
             {"Start", start.Start.Seconds()},
             {"Finish", start.Finish.Seconds()},
             {"Startzeit", DateTimeText(ablauf.Bedingungen.WallClock(start.Start))},
             {"Fertigzeit", DateTimeText(ablauf.Bedingungen.WallClock(start.Finish))},
             {"Schlange", Schlangenname(start.Order.queue)},
             {"Grund", Wartetext(ablauf, start.Zeile)}});
    }
    return {{"Punkte", punkte}, {"Auftraege", auftraege}};
}

}  // namespace

std::string JsonText(const Planlauf& lauf, bool mitVerlauf) {
    const BuildList& liste = lauf.Plan.LV_Bauliste;
    json objekt{{"Meldungen", Meldungen(lauf)},
                {"Geladen", lauf.Geladen},
                {"Gelaufen", lauf.Gelaufen},
                {"Bauliste", Zeilen(liste)},
                {"ListStufe", JeCode([&](ItemId item) { return liste.Orders().ListStufe(item); })},
                {"ListFaktor", liste.Orders().ListFaktor()},
                {"Schlafzeiten", Schlafzeiten(lauf.Plan.LV_Schlafzeiten)}};
    if (lauf.Gelaufen) {
        FuegeZustandAn(objekt, lauf.Lauf.Stand, lauf.Lauf.Bedingungen);
        FuegeTexteAn(objekt, lauf.Texte);
        objekt["LV_Bauzeiten"] = Zeittabelle(lauf.Lauf.LV_Bauzeiten);
        if (mitVerlauf) {
            objekt["Verlauf"] = VerlaufVon(lauf.Abgespielt());
        }
    }
    return objekt.dump(1);
}

}  // namespace tarvelin
