// Entering and reading of sleep windows.
#include "plan/SleepTable.h"

#include <algorithm>

#include "util/NumberText.h"

namespace tarvelin {

namespace {

struct Zeitraum {
    DateTime Start;
    DateTime Ende;
};

std::string Minutentext(DateTime zeitpunkt) {
    constexpr std::size_t kOhneSekunden = 16;
    return DateTimeText(zeitpunkt).substr(0, kOhneSekunden);
}

std::optional<Zeitraum> LiesZeile(const SchlafzeitZeile& zeile) {
    const auto start = ParseDateTime(zeile.Startzeit);
    const auto ende = ParseDateTime(zeile.Endzeit);
    if (!start || !ende) {
        return std::nullopt;
    }
    return Zeitraum{*start, *ende};
}

std::optional<DateTime> LiesStart(const Schlafeingabe& eingabe) {
    return ParseDateTime(eingabe.Datum + " " + eingabe.StartStunden + ":" + eingabe.StartMinuten);
}

std::optional<Long> LiesDauer(const Schlafeingabe& eingabe) {
    const auto stunden = ParseNumber(eingabe.DauerStunden);
    const auto minuten = ParseNumber(eingabe.DauerMinuten);
    if (!stunden || !minuten) {
        return std::nullopt;
    }
    return HalfEvenLong(*stunden * 3600 + *minuten * 60);
}

bool Ueberschneiden(const Zeitraum& alt, const Zeitraum& neu) {
    const auto nicht_spaeter = [](DateTime a, DateTime b) {
        return !cSchlafzeit::IstSpaeter(b, a);
    };
    const auto im_alten = [&](DateTime zeitpunkt) {
        return nicht_spaeter(alt.Start, zeitpunkt) && cSchlafzeit::IstSpaeter(zeitpunkt, alt.Ende);
    };
    const bool alter_im_neuen =
        cSchlafzeit::IstSpaeter(neu.Start, alt.Start) && nicht_spaeter(alt.Ende, neu.Ende);
    return im_alten(neu.Start) || im_alten(neu.Ende) || alter_im_neuen;
}

Message Eingabefehler(const char* text) {
    return {.text = text, .title = kBadInputTitle};
}

}  // namespace

std::optional<Message> AddSchlafzeit(const Schlafeingabe& eingabe, Schlaftabelle& tabelle) {
    const auto dauer = LiesDauer(eingabe);
    if (!dauer) {
        return Eingabefehler("Keine gültige Dauer eingegeben...");
    }
    const auto start = LiesStart(eingabe);
    if (!start) {
        return Eingabefehler("Kein gültiges Datum eingegeben...");
    }
    const Zeitraum neu{*start, *start + *dauer};
    const bool belegt = std::ranges::any_of(tabelle, [&](const SchlafzeitZeile& zeile) {
        const auto alt = LiesZeile(zeile);
        return alt && Ueberschneiden(*alt, neu);
    });
    if (belegt) {
        return Eingabefehler("Kein überschneidenden Zeiträumen eingegeben...");
    }
    tabelle.push_back({Minutentext(neu.Start), Minutentext(neu.Ende)});
    return std::nullopt;
}

std::string SchlafendeText(const Schlafeingabe& eingabe) {
    const auto start = LiesStart(eingabe);
    const auto dauer = LiesDauer(eingabe);
    if (!start || !dauer) {
        return "Error";
    }
    const DateTime ende = *start + *dauer;
    const std::string uhrzeit = TimeOfDayText(ende);
    constexpr std::size_t kOhneSekunden = 5;
    return std::string(WeekdayShort(ende)) + ".  " + DateText(ende) + " " +
           uhrzeit.substr(0, kOhneSekunden);
}

std::vector<cSchlafzeit> LiesSchlafzeiten(const Schlaftabelle& tabelle) {
    std::vector<cSchlafzeit> schlafzeiten;
    schlafzeiten.reserve(tabelle.size());
    for (const SchlafzeitZeile& zeile : tabelle) {
        if (const auto zeitraum = LiesZeile(zeile)) {
            schlafzeiten.emplace_back(zeitraum->Start, zeitraum->Ende);
        }
    }
    return schlafzeiten;
}

}  // namespace tarvelin
