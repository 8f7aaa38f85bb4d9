// Runs the console program itself and checks its streams and exit codes.
#include <nlohmann/json.hpp>
#include <tuple>

#include "TestSupport.h"
#include "export/SearchReport.h"

namespace tarvelin {
namespace {

struct CallResult {
    int code = -1;
    std::string output;
    std::string errors;
};

CallResult Call(const TempFolder& folder, const std::string& arguments) {
    const auto output = folder / "ausgabe";
    const auto error = folder / "fehler";
    const int code = Execute(folder, Quoted(TARVELIN_CLI) + " >" + Quoted(output) + " 2>" +
                                         Quoted(error) + " " + arguments);
    return {code, ReadFileToString(output), ReadFileToString(error)};
}

bool Has(const std::string& text, std::string_view part) {
    return text.find(part) != std::string::npos;
}

const std::string kPlan = Quoted(std::filesystem::path(TARVELIN_GOLDEN) / "regelwidrig-13.tvf");
const std::string kStarterPlan =
    Quoted(std::filesystem::path(TARVELIN_SOURCE_DIR) / "data" / "saves" / "basic.tvf");
const std::string kLoadError =
    "Schwerer Ausnahmefehler 1337 !: Die Bauliste konnte nicht geladen werden...\n";

TEST(Console, PrintsTheSchedule) {
    const TempFolder folder;
    const CallResult call = Call(folder, kStarterPlan);
    EXPECT_EQ(call.code, 0);
    EXPECT_EQ(call.errors, "");
    for (const char* row :
         {"basic.tvf\n\nNr.  Wochentag  Uhrzeit   theText                Zeitpunkt            "
          "Grund\n",
          "\n  1  Di         18:00:05  Solarkraftwerk: 1      01.12.2026 18:00:05  Klickpuffer: 5 "
          "s\n",
          "\n\nDauer:              04 Tage ",
          "\nMetall:                         ", "\nPunkte inkl. Res.:            "}) {
        EXPECT_TRUE(Has(call.output, row)) << row << call.output;
    }
}

TEST(Console, WritesOneTableForAll) {
    const TempFolder folder;
    // Windows allows no quotation marks in a file name.
    const std::string name = kWindows ? "[a b]" : "[\"a;b\"]";
    WriteFile(folder / name, ReadFileToString(TARVELIN_GOLDEN "/fuenf-zeilen.tvf"));
    const CallResult call =
        Call(folder, "--csv " + kPlan + (kWindows ? " \"" + name + "\"" : " '" + name + "'"));
    EXPECT_EQ(call.code, 0);
    EXPECT_TRUE(call.output.starts_with(
        "\xEF\xBB\xBFPlan;Nr.;Wochentag;Uhrzeit;theText;Zeitpunkt;Verzögerung\r\n"
        "regelwidrig-13.tvf;1;Do;00:00:00;"))
        << call.output;
    const char* const cell = kWindows ? "[a b]" : "\"[\"\"a;b\"\"]\"";
    EXPECT_TRUE(Has(call.output, std::string("\r\n") + cell + ";1;Sa;")) << call.output;
    EXPECT_FALSE(Has(call.output.substr(3), "\xEF\xBB\xBF"));
}

TEST(Console, GoesOnAfterAnError) {
    const TempFolder folder;
    for (const char* kind : {"", "--csv ", "--json "}) {
        const CallResult call =
            Call(folder, kind + Quoted(folder / "fehlt.tvf") + " " + Quoted(folder / ".") +
                             (kWindows ? " NUL " : " /dev/zero ") + kPlan);
        EXPECT_EQ(call.code, 1);
        EXPECT_TRUE(call.errors.starts_with(kLoadError + (folder / "fehlt.tvf").string() +
                                            ": diese Datei gibt es nicht\n" + kLoadError))
            << call.errors;
        EXPECT_TRUE(Has(call.errors, ": das ist ein Ordner, keine Datei\n"));
        EXPECT_TRUE(Has(call.output, "29.02.2024")) << kind;
    }
}

TEST(Console, ExplainsItselfAndWrongCalls) {
    const TempFolder folder;
    EXPECT_EQ(Call(folder, "--version").output, "tarvelin-cli " TARVELIN_VERSION "\n");
    if (!kWindows) {
        EXPECT_EQ(Call(folder, kPlan + " >/dev/full").code, 1);
    }
    for (const char* help : {"--hilfe", "--help", "-h"}) {
        const CallResult call = Call(folder, help);
        EXPECT_EQ(call.code, 0);
        EXPECT_TRUE(Has(call.output, "--threads ZAHL") && !Has(call.output, "UINT"));
        EXPECT_TRUE(Has(call.output, "  WR    Raketenwerfer\n")) << call.output;
    }
    const std::vector<std::pair<const char*, const char*>> wrong{
        {"", "es fehlt eine Plandatei"},
        {"--foo x", "unbekannte Option: --foo"},
        {"--json --csv x", "--json und --csv schließen einander aus"},
        {"--csv --json x", "--json und --csv schließen einander aus"},
        {"--json=3 x", "--json nimmt keinen Wert"},
        {"--suche x --csv", "--suche und --csv schließen einander aus"},
        {"--suche x y", "--suche nimmt genau eine Plandatei"},
        {"--ziel plan x", "diese Option gilt nur mit --suche"},
        {"--suche x --threads 0", "--threads erwartet eine Zahl von 1 bis 256"},
        {"--suche x --versuche viele", "--versuche erwartet eine Zahl von 1 bis 1125899906842624"},
        {"--suche x --sitzungen 100,1", "--sitzungen erwartet eine Zahl von 0 bis 100"},
        {"--suche x --sitzungen nan", "--sitzungen erwartet eine Zahl von 0 bis 100"},
        {"--suche x --saat 1 --saat 2", "--saat steht mehrmals da"},
        {"--suche x --ziel", "--ziel erwartet einen Wert"},
        {"--verlauf x", "diese Option gilt nur mit --json"},
        {"--vergleich x", "--vergleich erwartet zwei Plandateien"},
        {"--ical k x y", "--ical nimmt genau eine Plandatei"},
        {"--vergleich x y --ical k", "--vergleich und --ical schließen einander aus"}};
    for (const auto& [arguments, error] : wrong) {
        const CallResult call = Call(folder, arguments);
        EXPECT_EQ(call.code, 2) << arguments;
        EXPECT_EQ(call.errors, std::string("tarvelin-cli: ") + error + " (siehe --hilfe)\n");
        EXPECT_EQ(call.output, "");
    }
}

TEST(Console, ComparesPlans) {
    using nlohmann::json;
    const TempFolder folder;
    const CallResult call = Call(folder, "--json --vergleich " + kPlan + " " + kStarterPlan);
    EXPECT_EQ(call.code, 0);
    const json comparison = json::parse(call.output);
    const json run = json::parse(Call(folder, "--json --verlauf " + kStarterPlan).output);
    EXPECT_EQ(comparison["B"]["Sekunden"], run["secsgone"]);
    EXPECT_EQ(run["Verlauf"]["Auftraege"].size(), run["Bauliste"].size());
    EXPECT_EQ(run["Verlauf"]["Punkte"].back()["Sekunde"], run["secsgone"]);
    json without = run;
    without.erase("Verlauf");
    // JSON keeps the game's misspelt name, as programs know it; people read the correct one.
    EXPECT_TRUE(Has(run["Verlauf"]["Auftraege"].dump(), "\"Rakentenwerfer 1\""));
    const std::string forPeople = Call(folder, "--vergleich " + kPlan + " " + kStarterPlan).output;
    EXPECT_TRUE(Has(forPeople, "Raketenwerfer 1") && !Has(forPeople, "Rakentenwerfer"));
    EXPECT_EQ(without, json::parse(Call(folder, "--json " + kStarterPlan).output));
    // Orders that start at the same time aren't listed.
    const std::string same =
        Call(folder, "--vergleich " + kStarterPlan + " " + kStarterPlan).output;
    EXPECT_TRUE(Has(same, "4 Tage 04:40:16") && !Has(same, "Solarkraftwerk 1")) << same;
    for (const char* const option : {"--vergleich ", "--ical kalender.ics "}) {
        const std::string another = option[2] == 'v' ? kStarterPlan : "";
        const CallResult missing = Call(folder, option + another + " fehlt.tvf");
        EXPECT_EQ(missing.code, 1);
        EXPECT_EQ(missing.errors, kLoadError + "fehlt.tvf: diese Datei gibt es nicht\n");
    }
    EXPECT_FALSE(std::filesystem::exists(folder / "kalender.ics"));
    EXPECT_EQ(Call(folder, "--ical fehlt/kalender.ics " + kStarterPlan).code, 1);
}

TEST(Console, SearchesAndWritesThePlan) {
    using nlohmann::json;
    const TempFolder folder;
    const std::string search = "--suche " + kStarterPlan + " --versuche 20000 --json";
    const CallResult call = Call(folder, search + " --nach neu.tvf");
    EXPECT_EQ(call.code, 0);
    EXPECT_EQ(call.errors, "");
    const json report = json::parse(call.output);
    EXPECT_EQ(report["Vorher"]["Dauer"], "04 Tage 04:40:16");
    EXPECT_EQ(report["Vorher"]["Zeilen"], 49);
    EXPECT_LT(report["Nachher"]["Sekunden"], report["Vorher"]["Sekunden"]);
    EXPECT_EQ(report["Versuche"], 20000);
    EXPECT_EQ(report["Saat"], 1);
    const json run = json::parse(Call(folder, "--json neu.tvf").output);
    EXPECT_EQ(run["secsgone"], report["Nachher"]["Sekunden"]);
    json tags;
    for (const json& row : run["Bauliste"]) {
        tags.push_back(row["Tag"]);
    }
    EXPECT_EQ(tags, report["Bauliste"]);
    // The result depends neither on the threads nor on whether the plan is written.
    EXPECT_EQ(Call(folder, search + " --threads 2").output, call.output);
    const std::string fewer =
        Call(folder, "--suche " + kStarterPlan + " --ziel WLJ1 --versuche 1 --sitzungen 0,5")
            .output;
    EXPECT_TRUE(Has(fewer, "\nEntfällt:    ") && Has(fewer, "1 x Raketenwerfer")) << fewer;
    EXPECT_TRUE(Has(ProgressLine({.gain = -960}), "Gewinn -00 Tage 00:16:00 "));
    const std::string text = Call(folder, "--suche neu.tvf --versuche 20000 --fest 1-49").output;
    EXPECT_TRUE(Has(text, "Gewinn:      00 Tage 00:00:00 (0 %)")) << text;
}

TEST(Console, WritesNothingIfTheSearchCannotRun) {
    const TempFolder folder;
    const std::vector<std::tuple<const char*, int, const char*>> cases{
        {"--ziel XX1", 2, "\"XX1\" nennt kein Item"},
        {"--fest 3,", 2, "--fest erwartet Zeilen wie 3,7-9"},
        {"--fest 50", 2, "Feste Zeilen gehen von 1 bis 49"},
        {"--fest 1,9-3", 2, "--fest 9-3 läuft rückwärts: gemeint ist wohl 3-9"},
        {"--ab gestern", 2, "--ab erwartet einen Zeitpunkt"},
        {"--ab \"01.01.2030 00:00:00\"", 1, "Alle Aufträge beginnen vor dem"},
    };
    for (const auto& [options, code, text] : cases) {
        const CallResult call =
            Call(folder, "--suche " + kStarterPlan + " --nach neu.tvf " + options);
        EXPECT_EQ(call.code, code) << options;
        EXPECT_TRUE(Has(call.errors, text)) << call.errors;
        EXPECT_EQ(call.output, "");
        EXPECT_FALSE(std::filesystem::exists(folder / "neu.tvf"));
    }
    EXPECT_EQ(Call(folder, "--suche fehlt.tvf").errors,
              "tarvelin-cli: Die Bauliste konnte nicht geladen werden...\n"
              "fehlt.tvf: diese Datei gibt es nicht\n");
}

#ifdef __linux__
TEST(Console, EndsOnASignalWithTheBestPlan) {
    const TempFolder folder;
    // Sends the signal once the program itself, no longer the shell, has its handler installed.
    WriteFile(
        folder / "ruf",
        "\"$1\" --suche \"$2\" --nach neu.tvf --versuche 1000000000000 & p=$!\n"
        "until grep -q '^tarvelin' /proc/$p/comm; do sleep 0.05; done\n"
        "until grep -qE '^SigCgt:.*[2367abef]$|^State:.*Z' /proc/$p/status; do sleep 0.05; done\n"
        "kill -INT $p; wait $p\n");
    EXPECT_EQ(Execute(folder, "sh ruf " + Quoted(TARVELIN_CLI) + " " + kStarterPlan + " >aus"), 0);
    EXPECT_TRUE(ReadFileToString(folder / "aus").starts_with("Vorher:      04 Tage 04:40:16"));
    EXPECT_EQ(Call(folder, "neu.tvf").code, 0);
}
#endif

}  // namespace
}  // namespace tarvelin
