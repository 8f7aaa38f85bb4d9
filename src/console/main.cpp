// tarvelin-cli: runs, compares and searches plan files.
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

#include "console/ExitCode.h"
#include "console/HelpPage.h"
#include "console/SearchCommand.h"
#include "export/Calendar.h"
#include "export/ComparisonReport.h"
#include "export/RunReport.h"
#include "persistence/AtomicWrite.h"
#include "persistence/PlanFile.h"
#include "simulation/RunTexts.h"
#include "util/Utf8.h"

namespace {

struct CommandLine {
    bool json = false;
    bool csv = false;
    bool history = false;
    std::optional<std::string> calendar;
    std::vector<std::string> comparison;
    std::vector<std::string> files;
    tarvelin::SearchCommand search;
};

/// Set by Ctrl+C during a search; global, as the signal handler has no argument to reach it by.
std::atomic<bool> g_stop{false};
static_assert(std::atomic<bool>::is_always_lock_free);

int RunSearch(tarvelin::SearchCommand command, bool json) {
    command.json = json;
    std::signal(SIGINT, [](int) { g_stop = true; });
    return tarvelin::RunSearchCommand(command, g_stop);
}

/// The first and the last word of the library's message are options.
std::pair<std::string, std::string> TwoNames(const std::string& text) {
    return {text.substr(0, text.find(' ')), text.substr(text.rfind(' ') + 1)};
}

/// The message for a missing or wrong value, or for a flag that got one.
std::string ValueError(const std::string& text) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 8> kExpected{
        {{"--versuche", "eine Zahl von 1 bis 1125899906842624"},
         {"--threads", "eine Zahl von 1 bis 256"},
         {"--saat", "eine Zahl von 0 bis 1099511627776"},
         {"--sitzungen", "eine Zahl von 0 bis 100"},
         {"--vergleich", "zwei Plandateien"},
         {"--ical", "eine Kalenderdatei"},
         {"--suche", "eine Plandatei"},
         {"--", "einen Wert"}}};
    // The library's message begins with the option, in one case without dashes.
    const std::string name = text.substr(0, text.find_first_of(" :"));
    const std::string option = name.starts_with("--") ? name : "--" + name;
    if (text.find("At Most 1") != std::string::npos) {
        return option + " steht mehrmals da";
    }
    for (const std::string_view flag : {"--json", "--csv", "--verlauf", "--frei"}) {
        if (option == flag) {
            return option + " nimmt keinen Wert";
        }
    }
    const auto* const expected = std::ranges::find_if(
        kExpected, [&](const auto& pair) { return option == pair.first || pair.first == "--"; });
    return option + " erwartet " + std::string(expected->second);
}

/// The error message for a wrong call, in one line.
std::string ErrorText(const CLI::ParseError& error) {
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
        return "es fehlt eine Plandatei";
    }
    if (dynamic_cast<const CLI::ExcludesError*>(&error) != nullptr) {
        const auto [one, other] = TwoNames(error.what());
        return std::max(one, other) + " und " + std::min(one, other) + " schließen einander aus";
    }
    if (dynamic_cast<const CLI::RequiresError*>(&error) != nullptr) {
        return "diese Option gilt nur mit " + TwoNames(error.what()).second;
    }
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
        // The library lists the arguments after a colon.
        const std::string text = error.what();
        return "unbekannte Option:" + text.substr(text.rfind(':') + 1);
    }
    return ValueError(error.what());
}

/// Loads and runs a plan. Prints its messages as "Titel: Text" to the error stream, then what is
/// wrong with the file, after its name.
tarvelin::PlanRun RunFile(const std::string& file) {
    tarvelin::PlanRun planRun(tarvelin::PathFromUtf8(file));
    for (const tarvelin::Message& message : planRun.messages) {
        std::cerr << message.title << (message.title.empty() ? "" : ": ") << message.text << '\n';
    }
    const std::string text = !planRun.loaded ? tarvelin::LoadObstacle(tarvelin::PathFromUtf8(file))
                             : !planRun.hasRun ? "dieser Plan kann nicht gespielt werden"
                             : planRun.run.state.IsAtEndOfClock() ? tarvelin::BeyondClockText()
                                                                  : "";
    std::cerr << (text.empty() ? "" : file + ": " + text + "\n");
    return planRun;
}

bool WriteCalendar(const tarvelin::PlanRun& planRun, const std::string& file) {
    constexpr tarvelin::Long kReminder = 10;
    const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    const std::string text = tarvelin::CalendarText(planRun.Trace(), kReminder, now);
    if (tarvelin::WriteFileAtomically(tarvelin::PathFromUtf8(file), text,
                                      tarvelin::NativeFileSystem())) {
        return true;
    }
    std::cerr << "tarvelin-cli: Der Kalender konnte nicht gespeichert werden\n";
    return false;
}

bool ComparePlans(const CommandLine& call) {
    const tarvelin::PlanRun a = RunFile(call.comparison[0]);
    const tarvelin::PlanRun b = RunFile(call.comparison[1]);
    if (!a.hasRun || !b.hasRun) {
        return false;
    }
    if (call.json) {
        std::cout << tarvelin::ComparisonJson(a, b) << '\n';
    } else {
        std::cout << tarvelin::ComparisonText(a, b);
    }
    return true;
}

bool Execute(const CommandLine& call) {
    if (!call.comparison.empty()) {
        return ComparePlans(call);
    }
    bool allGood = true;
    bool first = true;
    if (call.csv) {
        std::cout << tarvelin::RunCsvHeader();
    }
    for (const std::string& file : call.files) {
        const tarvelin::PlanRun planRun = RunFile(file);
        if (call.json) {
            std::cout << tarvelin::RunJson(planRun, call.history) << '\n';
        } else if (call.csv) {
            std::cout << tarvelin::RunCsv(planRun);
        } else if (planRun.hasRun) {
            std::cout << (first ? "" : "\n") << tarvelin::RunText(planRun);
            first = false;
        }
        allGood = allGood && planRun.hasRun;
        if (call.calendar && planRun.hasRun) {
            allGood = WriteCalendar(planRun, *call.calendar) && allGood;
        }
    }
    return allGood;
}

/// As the library wants them: without the program's name and in reverse. It would take an argument
/// that begins with "[" for a list; "./" before it prevents that.
std::vector<std::string> ForLibrary(std::vector<std::string> arguments) {
    if (!arguments.empty()) {
        arguments.erase(arguments.begin());
    }
    for (std::string& argument : arguments) {
        argument.insert(0, argument.starts_with('[') ? "./" : "");
    }
    std::ranges::reverse(arguments);
    return arguments;
}

/// Adds `--suche` and its options.
CLI::Option* AddSearch(CLI::App& app, tarvelin::SearchCommand& command) {
    constexpr unsigned kMaxThreads = 256;
    const std::string group = "Suche";
    auto* const search = app.add_option("--suche", command.planFile,
                                        "Sucht eine schnellere Reihenfolge für diesen Plan");
    search->type_name("PLAN")->group(group);
    const std::vector<CLI::Option*> options{
        app.add_option("--ziel", command.goal,
                       "Sucht den schnellsten Weg zu diesem Ziel, etwa \"werft 3, kl. transporter "
                       "2\"; plan: zu dem des Plans")
            ->type_name("ZIEL"),
        app.add_option("--nach", command.outputFile, "Schreibt den gefundenen Plan in diese Datei")
            ->type_name("DATEI"),
        app.add_option("--versuche", command.tries, "So viele Listen werden probiert, sonst 640000")
            ->type_name("ZAHL")
            ->check(CLI::Range(std::uint64_t{1}, std::uint64_t{1} << 50U).description("")),
        app.add_option("--threads", command.threads, "So viele Kerne rechnen, sonst 1")
            ->type_name("ZAHL")
            ->check(CLI::Range(1U, kMaxThreads).description("")),
        app.add_option("--saat", command.seed, "Womit die Zufallszahlen beginnen, sonst 1")
            ->type_name("ZAHL")
            ->check(CLI::Range(std::uint64_t{0}, std::uint64_t{1} << 40U).description("")),
        app.add_option("--fest", command.pinned, "Diese Zeilen bleiben, wo sie sind, etwa 3,7-9")
            ->type_name("ZEILEN"),
        app.add_flag("--frei", command.moveProduction, "Auch Produktionszeilen wandern")
            ->disable_flag_override(),
        app.add_option("--ab", command.notBefore,
                       "Was vorher begonnen hat, bleibt, etwa \"18.11.2026 12:30:00\"")
            ->type_name("ZEITPUNKT"),
        app.add_option("--sitzungen", command.sittingsPercent,
                       "Weniger Sitzungen, auch wenn es so viele Prozent länger dauert, sonst 0,5")
            ->type_name("PROZENT")
            ->expected(0, 1)
            ->default_str("0.5")
            ->transform(CLI::Validator(
                [](std::string& number) {
                    std::ranges::replace(number, ',', '.');
                    const bool isNumber =
                        number.find_first_not_of("0123456789.") == std::string::npos;
                    return std::string(isNumber ? "" : "keine Zahl");
                },
                ""))
            ->check(CLI::Range(0.0, 100.0).description(""))};
    for (CLI::Option* const option : options) {
        option->needs(search)->group(group);
    }
    return search;
}

/// The error message for a wrong number of plan files; empty if it is right.
std::string PlanFileError(std::size_t number, bool searching, bool compares, bool calendar) {
    if (searching || compares) {
        return number == 0 ? ""
               : searching ? "--suche nimmt genau eine Plandatei"
                           : "--vergleich nimmt genau zwei Plandateien";
    }
    if (number == 0) {
        return "es fehlt eine Plandatei";
    }
    return calendar && number > 1 ? "--ical nimmt genau eine Plandatei" : "";
}

int Run(const std::vector<std::string>& arguments) {
    CLI::App app(
        "Spielt Pläne durch und sagt auf die Sekunde, wann du welchen Auftrag geben kannst, und "
        "warum nicht früher.",
        "tarvelin-cli");
    app.formatter(std::make_shared<tarvelin::HelpPage>());
    // "/" begins a path, on Windows too.
    app.allow_windows_style_options(false);
    CommandLine call;
    const std::string group = "Optionen";
    app.set_help_flag("-h,--hilfe,--help", "Diese Hilfe")->group(group);
    app.set_version_flag("--version", "tarvelin-cli " TARVELIN_VERSION, "Die Version")
        ->group(group);
    auto* const json = app.add_flag("--json", call.json, "Plan und Ergebnis als JSON");
    json->disable_flag_override()->group(group);
    auto* const csv = app.add_flag("--csv", call.csv, "Der Zeitplan für eine Tabellenkalkulation");
    csv->disable_flag_override()->excludes(json)->group(group);
    app.add_flag("--verlauf", call.history, "Mit --json: auch der Verlauf und die Gründe")
        ->disable_flag_override()
        ->needs(json)
        ->group(group);
    auto* const calendar = app.add_option("--ical", call.calendar,
                                          "Schreibt die Starts eines Plans in diese Kalenderdatei");
    calendar->type_name("DATEI")->group(group);
    auto* const comparison =
        app.add_option("--vergleich", call.comparison, "Stellt zwei Pläne nebeneinander");
    comparison->type_name("PLAN PLAN")
        ->expected(2)
        ->excludes(csv)
        ->excludes(calendar)
        ->group(group);
    // The usage line shows them already.
    auto* const files = app.add_option("PLAN", call.files);
    files->group("");
    auto* const search = AddSearch(app, call.search);
    search->excludes(csv)->excludes(calendar)->excludes(comparison);
    try {
        app.parse(ForLibrary(arguments));
    } catch (const CLI::Success& help) {
        return app.exit(help);
    } catch (const CLI::ParseError& error) {
        std::cerr << "tarvelin-cli: " << ErrorText(error) << " (siehe --hilfe)\n";
        return tarvelin::kWrongCall;
    }
    const bool searching = search->count() > 0;
    if (const std::string error = PlanFileError(files->count(), searching, comparison->count() > 0,
                                                calendar->count() > 0);
        !error.empty()) {
        std::cerr << "tarvelin-cli: " << error << " (siehe --hilfe)\n";
        return tarvelin::kWrongCall;
    }
    const int code = searching       ? RunSearch(call.search, call.json)
                     : Execute(call) ? tarvelin::kGood
                                     : tarvelin::kPlanFailed;
    if (!std::cout.flush()) {
        std::cerr << "tarvelin-cli: die Ausgabe konnte nicht geschrieben werden\n";
        return tarvelin::kPlanFailed;
    }
    return code;
}

int Start(const std::vector<std::string>& arguments) {
    try {
        return Run(arguments);
    } catch (const std::exception& error) {
        // Such as a lack of memory.
        std::fprintf(stderr, "tarvelin-cli: %s\n", error.what());
        return tarvelin::kPlanFailed;
    }
}

}  // namespace

#ifdef _WIN32
int wmain(int argc, wchar_t** argv) {
    // UTF-8, and no conversion of line ends.
    SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    std::vector<std::string> arguments;
    for (const std::filesystem::path argument : std::span(argv, static_cast<std::size_t>(argc))) {
        arguments.push_back(tarvelin::PathToUtf8(argument));
    }
    return Start(arguments);
}
#else
int main(int argc, char** argv) {
    return Start({argv, argv + argc});
}
#endif
