// tarvelin-cli: runs plan files and prints their timetables.
#include <CLI/CLI.hpp>
#include <iostream>
#include <string>
#include <vector>

#include "console/Ausgabe.h"
#include "console/Planlauf.h"

namespace {

constexpr int kGut = 0;
constexpr int kPlanGescheitert = 1;
constexpr int kFalscherAufruf = 2;

struct Aufruf {
    bool Json = false;
    bool Csv = false;
    std::vector<std::string> Dateien;
};

/// What is wrong with a call, in one line.
std::string Fehlertext(const CLI::ParseError& fehler) {
    if (dynamic_cast<const CLI::RequiredError*>(&fehler) != nullptr) {
        return "es fehlt eine Plandatei";
    }
    if (dynamic_cast<const CLI::ExcludesError*>(&fehler) != nullptr) {
        return "--json und --csv schließen einander aus";
    }
    if (dynamic_cast<const CLI::ExtrasError*>(&fehler) != nullptr) {
        // The library names the arguments behind a colon.
        const std::string text = fehler.what();
        return "unbekannte Option:" + text.substr(text.rfind(':') + 1);
    }
    return "eine Option hat keinen gültigen Wert";
}

bool FuehreAus(const Aufruf& aufruf) {
    bool alleGut = true;
    if (aufruf.Csv) {
        tarvelin::SchreibeCsvKopf(std::cout);
    }
    for (const std::string& datei : aufruf.Dateien) {
        const tarvelin::Planlauf lauf(datei, std::cerr);
        if (aufruf.Json) {
            std::cout << tarvelin::JsonText(lauf) << '\n';
        } else if (aufruf.Csv) {
            tarvelin::SchreibeCsv(std::cout, lauf);
        } else if (lauf.Ergebnis.Gelaufen) {
            tarvelin::SchreibeText(std::cout, lauf);
        }
        alleGut = alleGut && lauf.Ergebnis.Gelaufen;
    }
    return alleGut;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app("Spielt Baupläne durch und gibt aus, wann welcher Auftrag gegeben werden kann.",
                 "tarvelin-cli");
    Aufruf aufruf;
    app.set_help_flag("--hilfe,--help", "Diese Hilfe");
    app.set_version_flag("--version", "tarvelin-cli " TARVELIN_VERSION, "Die Version");
    auto* const json =
        app.add_flag("--json", aufruf.Json, "Plan und Ergebnis als JSON")->disable_flag_override();
    app.add_flag("--csv", aufruf.Csv, "Die Bauzeiten für eine Tabellenkalkulation")
        ->disable_flag_override()
        ->excludes(json);
    app.add_option("PLAN", aufruf.Dateien, "Plandateien (.tvf)")->required();
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& hilfe) {
        return app.exit(hilfe);
    } catch (const CLI::ParseError& fehler) {
        std::cerr << "tarvelin-cli: " << Fehlertext(fehler) << " (siehe --hilfe)\n";
        return kFalscherAufruf;
    }
    return FuehreAus(aufruf) ? kGut : kPlanGescheitert;
}
