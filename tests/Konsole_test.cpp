// The console program itself: its streams and exit codes.
#include <sys/wait.h>

#include <cstdlib>

#include "Hilfen.h"

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
    const std::string befehl = "cd '" + (ordner / "").string() + "' && '" + TARVELIN_CLI + "' >'" +
                               ausgabe.string() + "' 2>'" + fehler.string() + "' " + argumente;
    const int status = std::system(befehl.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, LiesDatei(ausgabe), LiesDatei(fehler)};
}

const std::string kPlan = std::string("'") + TARVELIN_GOLDEN + "/regelwidrig-13.tvf'";
const std::string kLadefehler =
    "Schwerer Ausnahmefehler 1337 !: Die Bauliste konnte nicht geladen werden...\n";

TEST(Konsole, DrucktDenZeitplan) {
    const Ordner ordner;
    const Aufruf aufruf = Rufe(ordner, "'" TARVELIN_QUELLEN "/data/saves/basic.tvf'");
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
    const auto name = ordner / "[\"a;b\"]";
    std::filesystem::copy_file(TARVELIN_GOLDEN "/fuenf-zeilen.tvf", name);
    const Aufruf aufruf = Rufe(ordner, "--csv " + kPlan + " '[\"a;b\"]'");
    EXPECT_EQ(aufruf.Code, 0);
    EXPECT_TRUE(aufruf.Ausgabe.starts_with(
        "\xEF\xBB\xBFPlan;Nr.;Wochentag;Uhrzeit;theText;Zeitpunkt;Verzögerung\r\n"
        "regelwidrig-13.tvf;1;Do;00:00:00;"))
        << aufruf.Ausgabe;
    EXPECT_NE(aufruf.Ausgabe.find("\r\n\"[\"\"a;b\"\"]\";1;Sa;"), std::string::npos);
    EXPECT_EQ(aufruf.Ausgabe.find("\xEF\xBB\xBF", 3), std::string::npos);
}

TEST(Konsole, FaehrtNachEinemFehlerFort) {
    const Ordner ordner;
    for (const char* art : {"", "--csv ", "--json "}) {
        const Aufruf aufruf =
            Rufe(ordner, std::string(art) + "'" + (ordner / "fehlt.tvf").string() + "' '" +
                             (ordner / "").string() + "' /dev/zero " + kPlan);
        EXPECT_EQ(aufruf.Code, 1);
        EXPECT_EQ(aufruf.Fehler, kLadefehler + kLadefehler + kLadefehler);
        EXPECT_NE(aufruf.Ausgabe.find("29.02.2024"), std::string::npos) << art;
    }
}

TEST(Konsole, ErklaertSichUndFalscheAufrufe) {
    const Ordner ordner;
    EXPECT_EQ(Rufe(ordner, "--version").Ausgabe, "tarvelin-cli " TARVELIN_VERSION "\n");
    EXPECT_EQ(Rufe(ordner, kPlan + " >/dev/full").Code, 1);
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
