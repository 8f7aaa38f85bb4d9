// From options to a search and its report.
#include "console/SearchCommand.h"

#include <filesystem>
#include <iostream>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "console/SearchReport.h"
#include "persistence/PlanFile.h"
#include "simulation/RunTexts.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr int kGut = 0;
constexpr int kPlanGescheitert = 1;
constexpr int kFalscherAufruf = 2;

int Sage(const std::string& text, int code) {
    std::cerr << "tarvelin-cli: " << text << '\n';
    return code;
}

bool FehlerstromIstTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return ::isatty(STDERR_FILENO) == 1;
#endif
}

using Zeilenbereiche = std::vector<std::pair<std::size_t, std::size_t>>;

/// "3,7-9", or what is wrong with another text.
std::variant<Zeilenbereiche, std::string> LiesZeilen(std::string_view text) {
    constexpr const char* kErwartet = "--fest erwartet Zeilen wie 3,7-9";
    constexpr std::int64_t kHoechste = 9999;
    Zeilenbereiche stuecke;
    while (!text.empty()) {
        const auto ende = std::min(text.find(','), text.size());
        const auto stueck = text.substr(0, ende);
        if (ende + 1 == text.size()) {
            return kErwartet;
        }
        text.remove_prefix(std::min(ende + 1, text.size()));
        const auto strich = stueck.find('-');
        const auto erste = ParseWholeNumber(stueck.substr(0, strich), 1, kHoechste);
        const auto letzte = strich == std::string_view::npos
                                ? erste
                                : ParseWholeNumber(stueck.substr(strich + 1), 1, kHoechste);
        if (!erste || !letzte) {
            return kErwartet;
        }
        if (*erste > *letzte) {
            return "--fest " + std::string(stueck) + " läuft rückwärts: gemeint ist wohl " +
                   std::to_string(*letzte) + "-" + std::to_string(*erste);
        }
        stuecke.emplace_back(*erste, *letzte);
    }
    return stuecke;
}

/// The wish, or what is wrong with the call.
std::variant<SearchRequest, std::string> LiesWunsch(const Suchbefehl& befehl) {
    SearchRequest wunsch{.goal = befehl.Ziel, .moveProduction = befehl.Frei};
    const auto zeilen = LiesZeilen(befehl.Fest);
    if (const auto* const fehler = std::get_if<std::string>(&zeilen)) {
        return *fehler;
    }
    wunsch.pinnedRanges = std::get<Zeilenbereiche>(zeilen);
    if (befehl.Ab) {
        wunsch.notBefore = ParseDateTime(*befehl.Ab);
        if (!wunsch.notBefore) {
            return "--ab erwartet einen Zeitpunkt wie \"18.11.2026 12:30:00\"";
        }
    }
    return wunsch;
}

std::filesystem::path AlsPfad(const std::string& datei) {
    return std::u8string(datei.begin(), datei.end());
}

SearchResult SucheMitAnzeige(const PlanTask& aufgabe, const Suchbefehl& befehl,
                             const std::atomic<bool>& halt) {
    SearchBudget umfang{.seed = befehl.Saat, .threads = befehl.Threads};
    umfang.tries = befehl.Versuche == 0 ? umfang.tries : befehl.Versuche;
    umfang.slackPercent = befehl.Sitzungen.value_or(0);
    const bool anzeigen = FehlerstromIstTerminal();
    SearchResult ergebnis = Search(aufgabe, umfang, halt, [&](const SearchProgress& stand) {
        if (anzeigen) {
            std::cerr << '\r' << Fortschrittszeile(stand) << "   " << std::flush;
        }
    });
    if (anzeigen) {
        std::cerr << '\n';
    }
    return ergebnis;
}

}  // namespace

int FuehreSucheAus(const Suchbefehl& befehl, const std::atomic<bool>& halt) {
    const auto wunsch = LiesWunsch(befehl);
    if (const auto* const fehler = std::get_if<std::string>(&wunsch)) {
        return Sage(*fehler, kFalscherAufruf);
    }
    const PlanRun plan(AlsPfad(befehl.Plandatei));
    if (!plan.loaded) {
        const int code = Sage(LoadErrorMessage().text, kPlanGescheitert);
        std::cerr << befehl.Plandatei << ": " << LoadObstacle(AlsPfad(befehl.Plandatei)) << '\n';
        return code;
    }
    if (plan.run.state.IsAtEndOfClock()) {
        std::cerr << befehl.Plandatei << ": " << BeyondClockText() << '\n';
    }
    const auto aufgabe = MakePlanTask(plan.plan, std::get<SearchRequest>(wunsch));
    if (const auto* const absage = std::get_if<SearchRefusal>(&aufgabe)) {
        return Sage(absage->text, absage->wrongCall ? kFalscherAufruf : kPlanGescheitert);
    }
    const auto& gestellt = std::get<PlanTask>(aufgabe);
    const SearchResult ergebnis = SucheMitAnzeige(gestellt, befehl, halt);
    if (!ergebnis.best) {
        return Sage("Es wurde keine Liste gefunden, die endet", kPlanGescheitert);
    }
    const Plan neuer = WithOrders(plan.plan, ergebnis.best->orders, gestellt.pause);
    IniFile profil("");
    WritePlan(neuer, profil);
    const PlanRun lauf(befehl.Nach ? AlsPfad(*befehl.Nach).filename().string() : plan.name, profil);
    const Suchbericht bericht{.Plan = plan,
                              .Aufgabe = gestellt,
                              .Ergebnis = ergebnis,
                              .Neuer = lauf,
                              .Saat = befehl.Saat};
    if (befehl.Nach && !SaveBauliste(AlsPfad(*befehl.Nach), neuer)) {
        return Sage(SaveErrorMessage().text, kPlanGescheitert);
    }
    if (befehl.Json) {
        std::cout << SuchJson(bericht) << '\n';
    } else {
        SchreibeSuche(std::cout, bericht);
    }
    return kGut;
}

}  // namespace tarvelin
