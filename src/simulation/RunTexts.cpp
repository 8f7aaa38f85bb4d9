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
    return ablauf.Bedingungen.WallClock(start.Start +
                                        -std::int64_t{ablauf.Bedingungen.KlickPuffer});
}

std::string Stufentext(const LevelRequirement& fehlt) {
    return std::string(RowOf(fehlt.item).name) + " " + std::to_string(fehlt.minLevel);
}

/// The window whose end the order waited for, or that which began to hold it back.
std::string Schlaftext(const Ablauf& ablauf, const Startereignis& start) {
    const auto& fenster = ablauf.Bedingungen.Schlafzeiten;
    auto gesucht = std::ranges::find(fenster, BereitUm(ablauf, start), &cSchlafzeit::Endzeit);
    if (gesucht == fenster.end()) {
        const DateTime wach = ablauf.Bedingungen.WallClock(start.Wach);
        gesucht = std::ranges::find_if(fenster,
                                       [&](const cSchlafzeit& f) { return f.CheckifInside(wach); });
    }
    if (gesucht == fenster.end()) {
        return "Schlafzeit";
    }
    return "Schlafzeit " + TimeOfDayText(gesucht->Startzeit()) + " bis " +
           TimeOfDayText(gesucht->Endzeit());
}

/// Whether no order before the row waited for anything but clicks.
bool NurKlicksDavor(const Ablauf& ablauf, std::size_t zeile) {
    return std::ranges::all_of(ablauf.Starts, [&](const Startereignis& start) {
        return start.Zeile >= zeile || start.Grund.cause == DelayCause::None;
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

std::string Benannt(const Order& order, int nummer, std::string_view name) {
    if (order.kind != Order::Kind::Item) {
        return Bauzeit{.Order = order}.theText();
    }
    std::string text(name);
    return RowOf(order.item).traits.showsNumber ? text + " " + std::to_string(nummer) : text;
}

std::string Grundtext(const Ablauf& ablauf, const Startereignis& start) {
    const Delay& grund = start.Grund;
    switch (grund.cause) {
        case DelayCause::None:
            return Klicktext(ablauf, start.Zeile);
        case DelayCause::Level:
            return "Es fehlte: " + Stufentext(grund.missing);
        case DelayCause::FacilityUpgrade:
            return std::string(Schlangenname(grund.queue)) + ": Ausbau";
        case DelayCause::Deuterium:
            return "Es fehlte: Produktion von Deuterium";
        case DelayCause::Resource:
            return grund.shortage.Text();
        case DelayCause::Queue:
            return std::string(Schlangenname(grund.queue)) + " bis " +
                   TimeOfDayText(BereitUm(ablauf, start));
        case DelayCause::Sleep:
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
           Spannentext(SimTime::Last().Seconds()) + " käme, steht bei diesem Zeitpunkt.";
}

std::string Auftragstext(const Order& order, int nummer) {
    return Benannt(order, nummer, RowOf(order.item).name);
}

std::string Auftragsschluessel(const Order& order, int nummer) {
    return Benannt(order, nummer, RowOf(order.item).HoverName());
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

std::string_view Schlangenname(Queue schlange) {
    switch (schlange) {
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
