// The console program itself: its streams and exit codes.
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <tuple>

#include "TestSupport.h"
#include "console/SearchReport.h"

namespace tarvelin {
namespace {

struct Aufruf {
    int Code = -1;
    std::string Ausgabe;
    std::string Fehler;
};

Aufruf Rufe(const Ordner& ordner, const std::string& argumente) {
    const auto ausgabe = ordner / "ausgabe";
    const auto fehler = ordner / "fehler";
    const int code = FuehreAus(ordner, InZeichen(TARVELIN_CLI) + " >" + InZeichen(ausgabe) + " 2>" +
                                           InZeichen(fehler) + " " + argumente);
    return {code, LiesDatei(ausgabe), LiesDatei(fehler)};
}

const std::string kPlan = InZeichen(std::filesystem::path(TARVELIN_GOLDEN) / "regelwidrig-13.tvf");
const std::string kLadefehler =
    "Schwerer Ausnahmefehler 1337 !: Die Bauliste konnte nicht geladen werden...\n";

TEST(Konsole, DrucktDenZeitplan) {
    const Ordner ordner;
    const Aufruf aufruf = Rufe(ordner, "\"" TARVELIN_SOURCE_DIR "/data/saves/basic.tvf\"");
    EXPECT_EQ(aufruf.Code, 0);
    EXPECT_EQ(aufruf.Fehler, "");
    for (const char* zeile :
         {"basic.tvf\n",
          "\nNr.  Wochentag  Uhrzeit   theText                Zeitpunkt            Grund\n",
          "\n  1  Di         18:00:05  Solarkraftwerk: 1      01.12.2026 18:00:05  Klickpuffer: 5 "
          "s\n",
          "\nDauer:              04 Tage ",
          "\nMetall:                         ", "\nPunkte inkl. Res.:            "}) {
        EXPECT_NE(aufruf.Ausgabe.find(zeile), std::string::npos) << zeile << aufruf.Ausgabe;
    }
}

TEST(Konsole, SchreibtEineTabelleFuerAlle) {
    const Ordner ordner;
    // Marks can't stand in a name everywhere.
    const std::string name = kWindows ? "[a b]" : "[\"a;b\"]";
    SchreibeDatei(ordner / name, LiesDatei(TARVELIN_GOLDEN "/fuenf-zeilen.tvf"));
    const Aufruf aufruf =
        Rufe(ordner, "--csv " + kPlan + (kWindows ? " \"" + name + "\"" : " '" + name + "'"));
    EXPECT_EQ(aufruf.Code, 0);
    EXPECT_TRUE(aufruf.Ausgabe.starts_with(
        "\xEF\xBB\xBFPlan;Nr.;Wochentag;Uhrzeit;theText;Zeitpunkt;Verzögerung\r\n"
        "regelwidrig-13.tvf;1;Do;00:00:00;"))
        << aufruf.Ausgabe;
    const char* const zelle = kWindows ? "[a b]" : "\"[\"\"a;b\"\"]\"";
    EXPECT_NE(aufruf.Ausgabe.find(std::string("\r\n") + zelle + ";1;Sa;"), std::string::npos)
        << aufruf.Ausgabe;
    EXPECT_EQ(aufruf.Ausgabe.find("\xEF\xBB\xBF", 3), std::string::npos);
}

TEST(Konsole, FaehrtNachEinemFehlerFort) {
    const Ordner ordner;
    for (const char* art : {"", "--csv ", "--json "}) {
        const Aufruf aufruf =
            Rufe(ordner, art + InZeichen(ordner / "fehlt.tvf") + " " + InZeichen(ordner / ".") +
                             (kWindows ? " NUL " : " /dev/zero ") + kPlan);
        EXPECT_EQ(aufruf.Code, 1);
        EXPECT_TRUE(aufruf.Fehler.starts_with(kLadefehler + (ordner / "fehlt.tvf").string() +
                                              ": diese Datei gibt es nicht\n" + kLadefehler))
            << aufruf.Fehler;
        EXPECT_NE(aufruf.Fehler.find(": das ist ein Ordner, keine Datei\n"), std::string::npos);
        EXPECT_NE(aufruf.Ausgabe.find("29.02.2024"), std::string::npos) << art;
    }
}

TEST(Konsole, ErklaertSichUndFalscheAufrufe) {
    const Ordner ordner;
    EXPECT_EQ(Rufe(ordner, "--version").Ausgabe, "tarvelin-cli " TARVELIN_VERSION "\n");
    if (!kWindows) {
        EXPECT_EQ(Rufe(ordner, kPlan + " >/dev/full").Code, 1);
    }
    for (const char* hilfe : {"--hilfe", "--help", "-h"}) {
        const Aufruf seite = Rufe(ordner, hilfe);
        EXPECT_EQ(seite.Code, 0);
        EXPECT_NE(seite.Ausgabe.find("--threads ZAHL"), std::string::npos) << seite.Ausgabe;
        EXPECT_NE(seite.Ausgabe.find("  WR    Raketenwerfer\n"), std::string::npos);
        EXPECT_EQ(seite.Ausgabe.find("UINT"), std::string::npos);
    }
    const std::vector<std::pair<const char*, const char*>> falsche{
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
    for (const auto& [argumente, fehler] : falsche) {
        const Aufruf aufruf = Rufe(ordner, argumente);
        EXPECT_EQ(aufruf.Code, 2) << argumente;
        EXPECT_EQ(aufruf.Fehler, std::string("tarvelin-cli: ") + fehler + " (siehe --hilfe)\n");
        EXPECT_EQ(aufruf.Ausgabe, "");
    }
}

const std::string kStartplan =
    InZeichen(std::filesystem::path(TARVELIN_SOURCE_DIR) / "data" / "saves" / "basic.tvf");

TEST(Konsole, StelltPlaeneNebeneinander) {
    using nlohmann::json;
    const Ordner ordner;
    const Aufruf aufruf = Rufe(ordner, "--json --vergleich " + kPlan + " " + kStartplan);
    EXPECT_EQ(aufruf.Code, 0);
    const json vergleich = json::parse(aufruf.Ausgabe);
    const json lauf = json::parse(Rufe(ordner, "--json --verlauf " + kStartplan).Ausgabe);
    EXPECT_EQ(vergleich["B"]["Sekunden"], lauf["secsgone"]);
    EXPECT_EQ(lauf["Verlauf"]["Auftraege"].size(), lauf["Bauliste"].size());
    EXPECT_EQ(lauf["Verlauf"]["Punkte"].back()["Sekunde"], lauf["secsgone"]);
    json ohne = lauf;
    ohne.erase("Verlauf");
    // Programs know the misspelt name, people read the other one.
    const auto hat = [](const std::string& text, const char* name) {
        return text.find(name) != std::string::npos;
    };
    EXPECT_TRUE(hat(lauf["Verlauf"]["Auftraege"].dump(), "\"Rakentenwerfer 1\""));
    const std::string fuerMenschen =
        Rufe(ordner, "--vergleich " + kPlan + " " + kStartplan).Ausgabe;
    EXPECT_TRUE(hat(fuerMenschen, "Raketenwerfer 1") && !hat(fuerMenschen, "Rakentenwerfer"));
    EXPECT_EQ(ohne, json::parse(Rufe(ordner, "--json " + kStartplan).Ausgabe));
    // What is the same isn't listed.
    const std::string gleich = Rufe(ordner, "--vergleich " + kStartplan + " " + kStartplan).Ausgabe;
    EXPECT_NE(gleich.find("4 Tage 04:40:16"), std::string::npos) << gleich;
    EXPECT_EQ(gleich.find("Solarkraftwerk 1"), std::string::npos) << gleich;
    for (const char* const option : {"--vergleich ", "--ical kalender.ics "}) {
        const std::string weiterer = option[2] == 'v' ? kStartplan : "";
        const Aufruf fehlt = Rufe(ordner, option + weiterer + " fehlt.tvf");
        EXPECT_EQ(fehlt.Code, 1);
        EXPECT_EQ(fehlt.Fehler, kLadefehler + "fehlt.tvf: diese Datei gibt es nicht\n");
    }
    EXPECT_FALSE(std::filesystem::exists(ordner / "kalender.ics"));
    EXPECT_EQ(Rufe(ordner, "--ical fehlt/kalender.ics " + kStartplan).Code, 1);
}

TEST(Konsole, SuchtUndSchreibtDenPlan) {
    using nlohmann::json;
    const Ordner ordner;
    const std::string suche = "--suche " + kStartplan + " --versuche 20000 --json";
    const Aufruf aufruf = Rufe(ordner, suche + " --nach neu.tvf");
    EXPECT_EQ(aufruf.Code, 0);
    EXPECT_EQ(aufruf.Fehler, "");
    const json bericht = json::parse(aufruf.Ausgabe);
    EXPECT_EQ(bericht["Vorher"]["Dauer"], "04 Tage 04:40:16");
    EXPECT_EQ(bericht["Vorher"]["Zeilen"], 49);
    EXPECT_LT(bericht["Nachher"]["Sekunden"], bericht["Vorher"]["Sekunden"]);
    EXPECT_EQ(bericht["Versuche"], 20000);
    EXPECT_EQ(bericht["Saat"], 1);
    const json lauf = json::parse(Rufe(ordner, "--json neu.tvf").Ausgabe);
    EXPECT_EQ(lauf["secsgone"], bericht["Nachher"]["Sekunden"]);
    json tags;
    for (const json& zeile : lauf["Bauliste"]) {
        tags.push_back(zeile["Tag"]);
    }
    EXPECT_EQ(tags, bericht["Bauliste"]);
    // The same call gives the same, whether it writes or not.
    EXPECT_EQ(Rufe(ordner, suche + " --threads 2").Ausgabe, aufruf.Ausgabe);
    const std::string weniger =
        Rufe(ordner, "--suche " + kStartplan + " --ziel WLJ1 --versuche 1 --sitzungen 0,5").Ausgabe;
    EXPECT_NE(weniger.find("\nEntfällt:    "), std::string::npos) << weniger;
    EXPECT_NE(weniger.find("1 x Raketenwerfer"), std::string::npos) << weniger;
    EXPECT_NE(ProgressLine({.gain = -960}).find("Gewinn -00 Tage 00:16:00 "), std::string::npos);
    const std::string text = Rufe(ordner, "--suche neu.tvf --versuche 20000 --fest 1-49").Ausgabe;
    EXPECT_NE(text.find("Gewinn:      00 Tage 00:00:00 (0 %)"), std::string::npos) << text;
}

TEST(Konsole, SchreibtNichtsWennDieSucheNichtSuchenKann) {
    const Ordner ordner;
    const std::vector<std::tuple<const char*, int, const char*>> faelle{
        {"--ziel XX1", 2, "\"XX1\" nennt kein Item"},
        {"--fest 3,", 2, "--fest erwartet Zeilen wie 3,7-9"},
        {"--fest 50", 2, "Feste Zeilen gehen von 1 bis 49"},
        {"--fest 1,9-3", 2, "--fest 9-3 läuft rückwärts: gemeint ist wohl 3-9"},
        {"--ab gestern", 2, "--ab erwartet einen Zeitpunkt"},
        {"--ab \"01.01.2030 00:00:00\"", 1, "Alle Aufträge beginnen vor dem"},
    };
    for (const auto& [optionen, code, text] : faelle) {
        const Aufruf aufruf = Rufe(ordner, "--suche " + kStartplan + " --nach neu.tvf " + optionen);
        EXPECT_EQ(aufruf.Code, code) << optionen;
        EXPECT_NE(aufruf.Fehler.find(text), std::string::npos) << aufruf.Fehler;
        EXPECT_EQ(aufruf.Ausgabe, "");
        EXPECT_FALSE(std::filesystem::exists(ordner / "neu.tvf"));
    }
    EXPECT_EQ(Rufe(ordner, "--suche fehlt.tvf").Fehler,
              "tarvelin-cli: Die Bauliste konnte nicht geladen werden...\n"
              "fehlt.tvf: diese Datei gibt es nicht\n");
}

#ifdef __linux__
TEST(Konsole, EndetAufEinSignalMitDemBestenPlan) {
    const Ordner ordner;
    // The signal comes as soon as it is caught, by the program and not by the shell before it.
    SchreibeDatei(
        ordner / "ruf",
        "\"$1\" --suche \"$2\" --nach neu.tvf --versuche 1000000000000 & p=$!\n"
        "until grep -q '^tarvelin' /proc/$p/comm; do sleep 0.05; done\n"
        "until grep -qE '^SigCgt:.*[2367abef]$|^State:.*Z' /proc/$p/status; do sleep 0.05; done\n"
        "kill -INT $p; wait $p\n");
    EXPECT_EQ(FuehreAus(ordner, "sh ruf " + InZeichen(TARVELIN_CLI) + " " + kStartplan + " >aus"),
              0);
    EXPECT_TRUE(LiesDatei(ordner / "aus").starts_with("Vorher:      04 Tage 04:40:16"));
    EXPECT_EQ(Rufe(ordner, "neu.tvf").Code, 0);
}
#endif

}  // namespace
}  // namespace tarvelin
