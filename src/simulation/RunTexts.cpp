// Words for what an order waited for.
#include "simulation/RunTexts.h"

#include <algorithm>
#include <cstdlib>

#include "model/ItemTable.h"
#include "simulation/Schedule.h"
#include "util/Nuetzliches.h"

namespace tarvelin {

namespace {

/// When the wait was over: the click comes behind it.
DateTime BereitUm(const Ablauf& ablauf, const Startereignis& start) {
    return ablauf.Bedingungen.Uhrzeit(start.Start + -std::int64_t{ablauf.Bedingungen.KlickPuffer});
}

std::string Stufentext(const Stufenbedarf& fehlt) {
    return std::string(ZeileVon(fehlt.Item).Name) + " " + std::to_string(fehlt.Stufe);
}

/// The window whose end the order waited for, or that which began to hold it back.
std::string Schlaftext(const Ablauf& ablauf, const Startereignis& start) {
    const auto& fenster = ablauf.Bedingungen.Schlafzeiten;
    auto gesucht = std::ranges::find(fenster, BereitUm(ablauf, start), &cSchlafzeit::Ende);
    if (gesucht == fenster.end()) {
        const DateTime wach = ablauf.Bedingungen.Uhrzeit(start.Wach);
        gesucht = std::ranges::find_if(fenster,
                                       [&](const cSchlafzeit& f) { return f.CheckifInside(wach); });
    }
    if (gesucht == fenster.end()) {
        return "Schlafzeit";
    }
    return "Schlafzeit " + TimeOfDayText(gesucht->Beginn()) + " bis " +
           TimeOfDayText(gesucht->Ende());
}

/// Whether no order before the row waited for anything but clicks.
bool NurKlicksDavor(const Ablauf& ablauf, std::size_t zeile) {
    return std::ranges::all_of(ablauf.Starts, [&](const Startereignis& start) {
        return start.Zeile >= zeile || start.Grund.Was == Hindernis::Keines;
    });
}

std::string Klicktext(const Ablauf& ablauf, std::size_t zeile) {
    if (!NurKlicksDavor(ablauf, zeile) || (ablauf.Bedingungen.KlickPuffer == 0 && zeile > 0)) {
        return "wartete auf Zeile " + std::to_string(zeile);
    }
    return ablauf.Bedingungen.KlickPuffer == 0
               ? ""
               : "Klickpuffer: " + std::to_string(ablauf.Bedingungen.KlickPuffer) + " s";
}

std::string Benannt(const Auftrag& order, int nummer, std::string_view name) {
    if (order.Was != Auftrag::Art::Item) {
        return Bauzeit{.Order = order}.theText();
    }
    std::string text(name);
    return ZeileVon(order.Item).Besonders.MitNummer ? text + " " + std::to_string(nummer) : text;
}

std::string Grundtext(const Ablauf& ablauf, const Startereignis& start) {
    const Aufenthalt& grund = start.Grund;
    switch (grund.Was) {
        case Hindernis::Keines:
            return Klicktext(ablauf, start.Zeile);
        case Hindernis::Stufe:
            return "Es fehlte: " + Stufentext(grund.Fehlt);
        case Hindernis::Ausbau:
            return std::string(Schlangenname(grund.Queue)) + ": Ausbau";
        case Hindernis::Deuterium:
            return "Es fehlte: Produktion von Deuterium";
        case Hindernis::Rohstoff:
            return grund.Mangel.Text();
        case Hindernis::Schlange:
            return std::string(Schlangenname(grund.Queue)) + " bis " +
                   TimeOfDayText(BereitUm(ablauf, start));
        case Hindernis::Schlafzeit:
            return Schlaftext(ablauf, start);
    }
    return "";
}

}  // namespace

std::string Wartetext(const Ablauf& ablauf, std::size_t zeile) {
    const Startereignis* const start = ablauf.StartDer(zeile);
    if (start == nullptr) {
        return "";
    }
    // Nothing was left that could have opened the gate.
    return Grundtext(ablauf, *start) + (start->TorZu ? " (bis zuletzt)" : "");
}

std::string UeberDieUhrText() {
    return "Der Plan dauert länger, als die Uhr zeigen kann: was später als " +
           Spannentext(Moment::Letzter().Sekunden()) + " käme, steht bei diesem Zeitpunkt.";
}

std::string Auftragstext(const Auftrag& order, int nummer) {
    return Benannt(order, nummer, ZeileVon(order.Item).Name);
}

std::string Auftragsschluessel(const Auftrag& order, int nummer) {
    return Benannt(order, nummer, ZeileVon(order.Item).Hovername());
}

std::string Auftragstext(const Startereignis& start) {
    return Auftragstext(start.Order, start.Nummer);
}

std::string Spannentext(Long sekunden) {
    constexpr Long kTag = 86400;
    const Long tage = sekunden / kTag;
    return (tage > 0 ? std::to_string(tage) + (tage == 1 ? " Tag " : " Tage ") : "") +
           FormatDuration(sekunden % kTag, "s", "hh:mm:ss", "d");
}

std::string Aenderungstext(Long sekunden) {
    return (sekunden < 0 ? "-" : sekunden > 0 ? "+" : "±") + Spannentext(std::abs(sekunden));
}

std::string_view Schlangenname(Schlange schlange) {
    switch (schlange) {
        case Schlange::Gebaeude:
            return "Bauschleife";
        case Schlange::Werft:
            return "Werftschleife";
        case Schlange::Forschung:
            return "Forschungsschleife";
        case Schlange::Keine:
        case Schlange::Anzahl:
            break;
    }
    return "";
}

}  // namespace tarvelin
