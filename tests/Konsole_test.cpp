// The console program itself: its streams and exit codes.
#include <cstdlib>

#include "Hilfen.h"

namespace tarvelin {
namespace {

struct Aufruf {
    int Code = -1;
    std::string Ausgabe;
    std::string Fehler;
};

std::string InZeichen(const std::filesystem::path& pfad) {
    return "\"" + pfad.string() + "\"";
}

Aufruf Rufe(const Ordner& ordner, const std::string& argumente) {
    const auto ausgabe = ordner / "ausgabe";
    const auto fehler = ordner / "fehler";
    const std::string befehl = (kWindows ? "cd /d " : "cd ") + InZeichen(ordner / "") + " && " +
                               InZeichen(TARVELIN_CLI) + " >" + InZeichen(ausgabe) + " 2>" +
                               InZeichen(fehler) + " " + argumente;
    const int status = std::system(befehl.c_str());
    // Where a shell speaks POSIX, the code stands in the second byte.
    return {kWindows ? status : status >> 8, LiesDatei(ausgabe), LiesDatei(fehler)};
}

const std::string kPlan = InZeichen(std::filesystem::path(TARVELIN_GOLDEN) / "regelwidrig-13.tvf");
const std::string kLadefehler =
    "Schwerer Ausnahmefehler 1337 !: Die Bauliste konnte nicht geladen werden...\n";

TEST(Konsole, DrucktDenZeitplan) {
    const Ordner ordner;
    const Aufruf aufruf = Rufe(ordner, "\"" TARVELIN_QUELLEN "/data/saves/basic.tvf\"");
    EXPECT_EQ(aufruf.Code, 0);
    EXPECT_EQ(aufruf.Fehler, "");
    for (const char* zeile :
         {"basic.tvf\n",
          "\nNr.  Wochentag  Uhrzeit   theText                Zeitpunkt            Verzögerung\n",
          "\n  1  Di         18:00:05  Solarkraftwerk: 1      01.12.2026 18:00:05  Keine Verz",
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
        EXPECT_EQ(aufruf.Fehler, kLadefehler + kLadefehler + kLadefehler);
        EXPECT_NE(aufruf.Ausgabe.find("29.02.2024"), std::string::npos) << art;
    }
}

TEST(Konsole, ErklaertSichUndFalscheAufrufe) {
    const Ordner ordner;
    EXPECT_EQ(Rufe(ordner, "--version").Ausgabe, "tarvelin-cli " TARVELIN_VERSION "\n");
    if (!kWindows) {
        EXPECT_EQ(Rufe(ordner, kPlan + " >/dev/full").Code, 1);
    }
    for (const char* hilfe : {"--hilfe", "--help"}) {
        EXPECT_EQ(Rufe(ordner, hilfe).Code, 0);
        EXPECT_NE(Rufe(ordner, hilfe).Ausgabe.find("--json"), std::string::npos);
    }
    const std::vector<std::pair<const char*, const char*>> falsche{
        {"", "es fehlt eine Plandatei"},
        {"--foo x", "unbekannte Option: --foo"},
        {"--json --csv x", "--json und --csv schließen einander aus"},
        {"--csv --json x", "--json und --csv schließen einander aus"},
        {"--json=3 x", "eine Option hat keinen gültigen Wert"}};
    for (const auto& [argumente, fehler] : falsche) {
        const Aufruf aufruf = Rufe(ordner, argumente);
        EXPECT_EQ(aufruf.Code, 2) << argumente;
        EXPECT_EQ(aufruf.Fehler, std::string("tarvelin-cli: ") + fehler + " (siehe --hilfe)\n");
        EXPECT_EQ(aufruf.Ausgabe, "");
    }
}

}  // namespace
}  // namespace tarvelin
