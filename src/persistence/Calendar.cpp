// Lines of a calendar file.
#include "persistence/Calendar.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <vector>

#include "model/Cost.h"
#include "simulation/RunTexts.h"
#include "util/DateTime.h"

namespace tarvelin {

namespace {

constexpr Long kMinute = 60;

/// Lines end by a carriage return and a line feed, and have at most 75 bytes; a longer one goes on
/// behind a blank. No letter is parted.
std::string Zeile(std::string_view text) {
    constexpr std::size_t kHoechstens = 75;
    constexpr unsigned char kFolgebyte = 0x80;
    constexpr unsigned char kMaske = 0xC0;
    std::string gefaltet;
    std::size_t laenge = 0;
    for (std::size_t i = 0; i < text.size();) {
        std::size_t zeichen = 1;
        while (i + zeichen < text.size() &&
               (static_cast<unsigned char>(text[i + zeichen]) & kMaske) == kFolgebyte) {
            ++zeichen;
        }
        if (laenge + zeichen > kHoechstens) {
            gefaltet += "\r\n ";
            laenge = 1;
        }
        gefaltet += text.substr(i, zeichen);
        laenge += zeichen;
        i += zeichen;
    }
    return gefaltet + "\r\n";
}

std::string Geschuetzt(std::string_view text) {
    std::string geschuetzt;
    for (const char zeichen : text) {
        if (zeichen == '\n') {
            geschuetzt += "\\n";
            continue;
        }
        geschuetzt += zeichen == '\\' || zeichen == ';' || zeichen == ',' ? "\\" : "";
        geschuetzt += zeichen;
    }
    return geschuetzt;
}

/// "20061118T123000".
std::string Stempel(DateTime um) {
    const std::string datum = DateText(um);
    const std::string uhrzeit = TimeOfDayText(um);
    return datum.substr(6) + datum.substr(3, 2) + datum.substr(0, 2) + "T" + uhrzeit.substr(0, 2) +
           uhrzeit.substr(3, 2) + uhrzeit.substr(6, 2);
}

std::string Stempel(std::chrono::sys_seconds stand) {
    // Days between the two calendars' first ones.
    constexpr std::int64_t kVersatz = 25569 * std::int64_t{86400};
    return Stempel(DateTime(stand.time_since_epoch().count() + kVersatz)) + "Z";
}

/// Orders of one entry.
using Eintrag = std::vector<const StartEvent*>;

std::vector<Eintrag> Eintraege(const RunTrace& ablauf) {
    constexpr DateTime kLetzter(std::int64_t{2958466} * 86400);
    std::vector<const StartEvent*> starts;
    for (const StartEvent& start : ablauf.starts) {
        if (ablauf.conditions.WallClock(start.start) < kLetzter) {
            starts.push_back(&start);
        }
    }
    // A click buffer can put a row's start before that of the row above.
    std::ranges::stable_sort(starts, {}, [](const StartEvent* s) { return s->start; });
    std::vector<Eintrag> eintraege;
    for (const StartEvent* const start : starts) {
        if (eintraege.empty() || start->start - eintraege.back().front()->start > kMinute) {
            eintraege.emplace_back();
        }
        eintraege.back().push_back(start);
    }
    return eintraege;
}

std::string Beschreibung(const RunTrace& ablauf, const Eintrag& eintrag) {
    std::string text;
    for (const StartEvent* const start : eintrag) {
        text += text.empty() ? "" : "\n";
        text += TimeOfDayText(ablauf.conditions.WallClock(start->start)) + " " + OrderText(*start);
        if (start->order.kind == Order::Kind::Item) {
            text += "\n" + GetUpgradecostString(
                               CostOf(start->order.item, static_cast<Byte>(start->number - 1)));
        }
        const std::string grund = DelayText(ablauf, start->row);
        text += grund.empty() ? "" : "\n" + grund;
    }
    return text;
}

std::string Titel(const Eintrag& eintrag) {
    std::string text;
    for (const StartEvent* const start : eintrag) {
        text += text.empty() ? "" : ", ";
        text += OrderText(*start);
    }
    return text;
}

/// A production row has no level: it is told by how manieth of them it is.
std::string Kennung(const RunTrace& ablauf, const StartEvent& start) {
    const bool item = start.order.kind == Order::Kind::Item;
    const auto produktion = std::ranges::count_if(ablauf.starts, [&](const StartEvent& s) {
        return s.order.kind == Order::Kind::Production && s.row <= start.row;
    });
    const std::string tag = start.order.Tag();
    return tag.substr(0, tag.find(':')) + "-" + std::to_string(item ? start.number : produktion) +
           "-" + Stempel(ablauf.conditions.StartDate) + "@tarvelin";
}

}  // namespace

std::string Kalendertext(const RunTrace& ablauf, std::optional<Long> erinnerung,
                         std::chrono::sys_seconds stand) {
    std::string text =
        "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Tarvelin//Tarvelin//DE\r\n"
        "CALSCALE:GREGORIAN\r\n";
    for (const Eintrag& eintrag : Eintraege(ablauf)) {
        const StartEvent& erster = *eintrag.front();
        const std::string titel = Geschuetzt(Titel(eintrag));
        text += "BEGIN:VEVENT\r\n" + Zeile("UID:" + Kennung(ablauf, erster)) +
                Zeile("DTSTAMP:" + Stempel(stand)) +
                Zeile("DTSTART:" + Stempel(ablauf.conditions.WallClock(erster.start))) +
                "DURATION:PT1M\r\n" + Zeile("SUMMARY:" + titel) +
                Zeile("DESCRIPTION:" + Geschuetzt(Beschreibung(ablauf, eintrag)));
        if (erinnerung) {
            text += "BEGIN:VALARM\r\nACTION:DISPLAY\r\n" +
                    Zeile("TRIGGER:-PT" + std::to_string(*erinnerung) + "S") +
                    Zeile("DESCRIPTION:" + titel) + "END:VALARM\r\n";
        }
        text += "END:VEVENT\r\n";
    }
    return text + "END:VCALENDAR\r\n";
}

}  // namespace tarvelin
