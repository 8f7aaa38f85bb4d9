// tarvelin-cli: runs plan files and prints their timetables.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <span>
#endif

#include "console/ComparisonReport.h"
#include "console/HelpPage.h"
#include "console/RunReport.h"
#include "console/SearchCommand.h"
#include "persistence/AtomicWrite.h"
#include "persistence/Calendar.h"
#include "persistence/PlanFile.h"
#include "simulation/RunTexts.h"

namespace {

constexpr int kGut = 0;
constexpr int kPlanGescheitert = 1;
constexpr int kFalscherAufruf = 2;

struct Aufruf {
    bool Json = false;
    bool Csv = false;
    bool Verlauf = false;
    std::optional<std::string> Kalender;
    std::vector<std::string> Vergleich;
    std::vector<std::string> Dateien;
    tarvelin::Suchbefehl Suche;
};

/// Set by Ctrl+C during a search. A handler reaches nothing else.
std::atomic<bool> g_halt{false};
static_assert(std::atomic<bool>::is_always_lock_free);

int Suche(tarvelin::Suchbefehl befehl, bool json) {
    befehl.Json = json;
    std::signal(SIGINT, [](int) { g_halt = true; });
    return tarvelin::FuehreSucheAus(befehl, g_halt);
}

/// The library names two options, and a word between them.
std::pair<std::string, std::string> ZweiNamen(const std::string& text) {
    return {text.substr(0, text.find(' ')), text.substr(text.rfind(' ') + 1)};
}

/// What an option's value has to be, and a flag's not.
std::string Wertfehler(const std::string& text) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 8> kErwartet{
        {{"--versuche", "eine Zahl von 1 bis 1125899906842624"},
         {"--threads", "eine Zahl von 1 bis 256"},
         {"--saat", "eine Zahl von 0 bis 1099511627776"},
         {"--sitzungen", "eine Zahl von 0 bis 100"},
         {"--vergleich", "zwei Plandateien"},
         {"--ical", "eine Kalenderdatei"},
         {"--suche", "eine Plandatei"},
         {"--", "einen Wert"}}};
    // The library's text begins with its name, in one case without the dashes.
    const std::string name = text.substr(0, text.find_first_of(" :"));
    const std::string option = name.starts_with("--") ? name : "--" + name;
    if (text.find("At Most 1") != std::string::npos) {
        return option + " steht mehrmals da";
    }
    for (const std::string_view schalter : {"--json", "--csv", "--verlauf", "--frei"}) {
        if (option == schalter) {
            return option + " nimmt keinen Wert";
        }
    }
    const auto* const erwartet = std::ranges::find_if(
        kErwartet, [&](const auto& paar) { return option == paar.first || paar.first == "--"; });
    return option + " erwartet " + std::string(erwartet->second);
}

/// What is wrong with a call, in one line.
std::string Fehlertext(const CLI::ParseError& fehler) {
    if (dynamic_cast<const CLI::RequiredError*>(&fehler) != nullptr) {
        return "es fehlt eine Plandatei";
    }
    if (dynamic_cast<const CLI::ExcludesError*>(&fehler) != nullptr) {
        const auto [eine, andere] = ZweiNamen(fehler.what());
        return std::max(eine, andere) + " und " + std::min(eine, andere) +
               " schließen einander aus";
    }
    if (dynamic_cast<const CLI::RequiresError*>(&fehler) != nullptr) {
        return "diese Option gilt nur mit " + ZweiNamen(fehler.what()).second;
    }
    if (dynamic_cast<const CLI::ExtrasError*>(&fehler) != nullptr) {
        // The library names the arguments behind a colon.
        const std::string text = fehler.what();
        return "unbekannte Option:" + text.substr(text.rfind(':') + 1);
    }
    return Wertfehler(fehler.what());
}

std::filesystem::path AlsPfad(const std::string& datei) {
    return std::u8string(datei.begin(), datei.end());
}

/// Each message as "Titel: Text", or the text alone without a title; then what is to be told of the
/// file, under its name.
tarvelin::PlanRun SpieleDatei(const std::string& datei) {
    tarvelin::PlanRun lauf(AlsPfad(datei));
    for (const tarvelin::Message& meldung : lauf.messages) {
        std::cerr << meldung.title << (meldung.title.empty() ? "" : ": ") << meldung.text << '\n';
    }
    const std::string text = !lauf.loaded   ? tarvelin::LoadObstacle(AlsPfad(datei))
                             : !lauf.hasRun ? "dieser Plan kann nicht gespielt werden"
                             : lauf.run.state.IsAtEndOfClock() ? tarvelin::BeyondClockText()
                                                               : "";
    std::cerr << (text.empty() ? "" : datei + ": " + text + "\n");
    return lauf;
}

bool SchreibeKalender(const tarvelin::PlanRun& lauf, const std::string& datei) {
    constexpr tarvelin::Long kErinnerung = 10;
    const auto jetzt = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    const std::string text = tarvelin::CalendarText(lauf.Trace(), kErinnerung, jetzt);
    if (tarvelin::WriteFileAtomically(AlsPfad(datei), text, tarvelin::NativeFileSystem())) {
        return true;
    }
    std::cerr << "tarvelin-cli: Der Kalender konnte nicht gespeichert werden\n";
    return false;
}

bool Vergleiche(const Aufruf& aufruf) {
    const tarvelin::PlanRun a = SpieleDatei(aufruf.Vergleich[0]);
    const tarvelin::PlanRun b = SpieleDatei(aufruf.Vergleich[1]);
    if (!a.hasRun || !b.hasRun) {
        return false;
    }
    if (aufruf.Json) {
        std::cout << tarvelin::VergleichsJson(a, b) << '\n';
    } else {
        tarvelin::SchreibeVergleich(std::cout, a, b);
    }
    return true;
}

bool FuehreAus(const Aufruf& aufruf) {
    if (!aufruf.Vergleich.empty()) {
        return Vergleiche(aufruf);
    }
    bool alleGut = true;
    bool erster = true;
    if (aufruf.Csv) {
        tarvelin::SchreibeCsvKopf(std::cout);
    }
    for (const std::string& datei : aufruf.Dateien) {
        const tarvelin::PlanRun lauf = SpieleDatei(datei);
        if (aufruf.Json) {
            std::cout << tarvelin::JsonText(lauf, aufruf.Verlauf) << '\n';
        } else if (aufruf.Csv) {
            tarvelin::SchreibeCsv(std::cout, lauf);
        } else if (lauf.hasRun) {
            std::cout << (erster ? "" : "\n");
            tarvelin::SchreibeText(std::cout, lauf);
            erster = false;
        }
        alleGut = alleGut && lauf.hasRun;
        if (aufruf.Kalender && lauf.hasRun) {
            alleGut = SchreibeKalender(lauf, *aufruf.Kalender) && alleGut;
        }
    }
    return alleGut;
}

/// As the library wants them: without the program's name, from the last to the first. It takes a
/// name in square brackets for a list; with its folder in front it is a name.
std::vector<std::string> FuerBibliothek(std::vector<std::string> argumente) {
    if (!argumente.empty()) {
        argumente.erase(argumente.begin());
    }
    for (std::string& argument : argumente) {
        argument.insert(0, argument.starts_with('[') ? "./" : "");
    }
    std::ranges::reverse(argumente);
    return argumente;
}

/// `--suche` and what goes with it.
CLI::Option* FuegeSucheHinzu(CLI::App& app, tarvelin::Suchbefehl& befehl) {
    constexpr unsigned kHoechstThreads = 256;
    const std::string gruppe = "Suche";
    auto* const suche = app.add_option("--suche", befehl.Plandatei,
                                       "Sucht eine schnellere Reihenfolge für diesen Plan");
    suche->type_name("PLAN")->group(gruppe);
    const std::vector<CLI::Option*> optionen{
        app.add_option("--ziel", befehl.Ziel,
                       "Sucht den schnellsten Weg zu diesem Ziel, etwa \"GW2 FV2 WKT1\"; plan: zu "
                       "dem des Plans")
            ->type_name("ZIEL"),
        app.add_option("--nach", befehl.Nach, "Schreibt den gefundenen Plan in diese Datei")
            ->type_name("DATEI"),
        app.add_option("--versuche", befehl.Versuche,
                       "So viele Listen werden probiert, sonst 640000")
            ->type_name("ZAHL")
            ->check(CLI::Range(std::uint64_t{1}, std::uint64_t{1} << 50U).description("")),
        app.add_option("--threads", befehl.Threads, "So viele Kerne rechnen, sonst 1")
            ->type_name("ZAHL")
            ->check(CLI::Range(1U, kHoechstThreads).description("")),
        app.add_option("--saat", befehl.Saat, "Womit die Zufallszahlen beginnen, sonst 1")
            ->type_name("ZAHL")
            ->check(CLI::Range(std::uint64_t{0}, std::uint64_t{1} << 40U).description("")),
        app.add_option("--fest", befehl.Fest, "Diese Zeilen bleiben, wo sie sind, etwa 3,7-9")
            ->type_name("ZEILEN"),
        app.add_flag("--frei", befehl.Frei, "Auch Produktionszeilen wandern")
            ->disable_flag_override(),
        app.add_option("--ab", befehl.Ab,
                       "Was vorher begonnen hat, bleibt, etwa \"18.11.2026 12:30:00\"")
            ->type_name("ZEITPUNKT"),
        app.add_option("--sitzungen", befehl.Sitzungen,
                       "Weniger Sitzungen, auch wenn es so viele Prozent länger dauert, sonst 0,5")
            ->type_name("PROZENT")
            ->expected(0, 1)
            ->default_str("0.5")
            ->transform(CLI::Validator(
                [](std::string& zahl) {
                    std::ranges::replace(zahl, ',', '.');
                    const bool istZahl = zahl.find_first_not_of("0123456789.") == zahl.npos;
                    return std::string(istZahl ? "" : "keine Zahl");
                },
                ""))
            ->check(CLI::Range(0.0, 100.0).description(""))};
    for (CLI::Option* const option : optionen) {
        option->needs(suche)->group(gruppe);
    }
    return suche;
}

/// What is wrong with the number of plan files; empty for nothing.
std::string Plandateifehler(std::size_t zahl, bool sucht, bool vergleicht, bool kalender) {
    if (sucht || vergleicht) {
        return zahl == 0 ? ""
               : sucht   ? "--suche nimmt genau eine Plandatei"
                         : "--vergleich nimmt genau zwei Plandateien";
    }
    if (zahl == 0) {
        return "es fehlt eine Plandatei";
    }
    return kalender && zahl > 1 ? "--ical nimmt genau eine Plandatei" : "";
}

int Rufe(const std::vector<std::string>& argumente) {
    CLI::App app(
        "Spielt Pläne durch und sagt auf die Sekunde, wann du welchen Auftrag geben kannst, und "
        "warum nicht früher.",
        "tarvelin-cli");
    app.formatter(std::make_shared<tarvelin::Hilfeseite>());
    // "/" begins a path everywhere.
    app.allow_windows_style_options(false);
    Aufruf aufruf;
    const std::string gruppe = "Optionen";
    app.set_help_flag("-h,--hilfe,--help", "Diese Hilfe")->group(gruppe);
    app.set_version_flag("--version", "tarvelin-cli " TARVELIN_VERSION, "Die Version")
        ->group(gruppe);
    auto* const json = app.add_flag("--json", aufruf.Json, "Plan und Ergebnis als JSON");
    json->disable_flag_override()->group(gruppe);
    auto* const csv =
        app.add_flag("--csv", aufruf.Csv, "Der Zeitplan für eine Tabellenkalkulation");
    csv->disable_flag_override()->excludes(json)->group(gruppe);
    app.add_flag("--verlauf", aufruf.Verlauf, "Mit --json: auch der Verlauf und die Gründe")
        ->disable_flag_override()
        ->needs(json)
        ->group(gruppe);
    auto* const kalender = app.add_option("--ical", aufruf.Kalender,
                                          "Schreibt die Starts eines Plans in diese Kalenderdatei");
    kalender->type_name("DATEI")->group(gruppe);
    auto* const vergleich =
        app.add_option("--vergleich", aufruf.Vergleich, "Stellt zwei Pläne nebeneinander");
    vergleich->type_name("PLAN PLAN")
        ->expected(2)
        ->excludes(csv)
        ->excludes(kalender)
        ->group(gruppe);
    // They stand in the line of the call.
    auto* const dateien = app.add_option("PLAN", aufruf.Dateien);
    dateien->group("");
    auto* const suche = FuegeSucheHinzu(app, aufruf.Suche);
    suche->excludes(csv)->excludes(kalender)->excludes(vergleich);
    try {
        app.parse(FuerBibliothek(argumente));
    } catch (const CLI::Success& hilfe) {
        return app.exit(hilfe);
    } catch (const CLI::ParseError& fehler) {
        std::cerr << "tarvelin-cli: " << Fehlertext(fehler) << " (siehe --hilfe)\n";
        return kFalscherAufruf;
    }
    const bool sucht = suche->count() > 0;
    if (const std::string fehler =
            Plandateifehler(dateien->count(), sucht, vergleich->count() > 0, kalender->count() > 0);
        !fehler.empty()) {
        std::cerr << "tarvelin-cli: " << fehler << " (siehe --hilfe)\n";
        return kFalscherAufruf;
    }
    const int code = sucht               ? Suche(aufruf.Suche, aufruf.Json)
                     : FuehreAus(aufruf) ? kGut
                                         : kPlanGescheitert;
    if (!std::cout.flush()) {
        std::cerr << "tarvelin-cli: die Ausgabe konnte nicht geschrieben werden\n";
        return kPlanGescheitert;
    }
    return code;
}

int Starte(const std::vector<std::string>& argumente) {
    try {
        return Rufe(argumente);
    } catch (const std::exception& fehler) {
        // The memory ran out, or the system failed in a way that nobody foresees.
        std::fprintf(stderr, "tarvelin-cli: %s\n", fehler.what());
        return kPlanGescheitert;
    }
}

}  // namespace

#ifdef _WIN32
int wmain(int argc, wchar_t** argv) {
    // The output is UTF-8 with the line ends that we write.
    SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    std::vector<std::string> argumente;
    for (const std::filesystem::path argument : std::span(argv, static_cast<std::size_t>(argc))) {
        const auto utf8 = argument.u8string();
        argumente.emplace_back(utf8.begin(), utf8.end());
    }
    return Starte(argumente);
}
#else
int main(int argc, char** argv) {
    return Starte({argv, argv + argc});
}
#endif
