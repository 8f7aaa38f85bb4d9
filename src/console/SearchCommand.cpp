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
std::variant<Suchwunsch, std::string> LiesWunsch(const Suchbefehl& befehl) {
    Suchwunsch wunsch{.Ziel = befehl.Ziel, .Frei = befehl.Frei};
    const auto zeilen = LiesZeilen(befehl.Fest);
    if (const auto* const fehler = std::get_if<std::string>(&zeilen)) {
        return *fehler;
    }
    wunsch.Fest = std::get<Zeilenbereiche>(zeilen);
    if (befehl.Ab) {
        wunsch.Ab = ParseDateTime(*befehl.Ab);
        if (!wunsch.Ab) {
            return "--ab erwartet einen Zeitpunkt wie \"18.11.2026 12:30:00\"";
        }
    }
    return wunsch;
}

std::filesystem::path AlsPfad(const std::string& datei) {
    return std::u8string(datei.begin(), datei.end());
}

Suchergebnis SucheMitAnzeige(const Planaufgabe& aufgabe, const Suchbefehl& befehl,
                             const std::atomic<bool>& halt) {
    Suchumfang umfang{.Saat = befehl.Saat, .Threads = befehl.Threads};
    umfang.Versuche = befehl.Versuche == 0 ? umfang.Versuche : befehl.Versuche;
    umfang.Nachlass = befehl.Sitzungen.value_or(0);
    const bool anzeigen = FehlerstromIstTerminal();
    Suchergebnis ergebnis = Suche(aufgabe, umfang, halt, [&](const Fortschritt& stand) {
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
    const Planlauf plan(AlsPfad(befehl.Plandatei));
    if (!plan.Geladen) {
        const int code = Sage(Ladefehler().text, kPlanGescheitert);
        std::cerr << befehl.Plandatei << ": " << Ladehindernis(AlsPfad(befehl.Plandatei)) << '\n';
        return code;
    }
    if (plan.Lauf.state.IsAtEndOfClock()) {
        std::cerr << befehl.Plandatei << ": " << BeyondClockText() << '\n';
    }
    const auto aufgabe = StelleAufgabe(plan.Plan, std::get<Suchwunsch>(wunsch));
    if (const auto* const absage = std::get_if<Suchabsage>(&aufgabe)) {
        return Sage(absage->Text, absage->FalscherAufruf ? kFalscherAufruf : kPlanGescheitert);
    }
    const auto& gestellt = std::get<Planaufgabe>(aufgabe);
    const Suchergebnis ergebnis = SucheMitAnzeige(gestellt, befehl, halt);
    if (!ergebnis.Bester) {
        return Sage("Es wurde keine Liste gefunden, die endet", kPlanGescheitert);
    }
    const Plan neuer = MitListe(plan.Plan, ergebnis.Bester->Orders, gestellt.Pause);
    Profil profil("");
    SchreibePlan(neuer, profil);
    const Planlauf lauf(befehl.Nach ? AlsPfad(*befehl.Nach).filename().string() : plan.Name,
                        profil);
    const Suchbericht bericht{.Plan = plan,
                              .Aufgabe = gestellt,
                              .Ergebnis = ergebnis,
                              .Neuer = lauf,
                              .Saat = befehl.Saat};
    if (befehl.Nach && !SaveBauliste(AlsPfad(*befehl.Nach), neuer)) {
        return Sage(Speicherfehler().text, kPlanGescheitert);
    }
    if (befehl.Json) {
        std::cout << SuchJson(bericht) << '\n';
    } else {
        SchreibeSuche(std::cout, bericht);
    }
    return kGut;
}

}  // namespace tarvelin
