// Configuration, alarms' clockwork and the choice of the program's folder.
#include <optional>

#include "FaultyFileSystem.h"
#include "TestSupport.h"
#include "persistence/Autosave.h"
#include "persistence/Configuration.h"
#include "persistence/ProgramFolder.h"
#include "persistence/ProtectedFileSystem.h"
#include "simulation/DueAlarms.h"

namespace tarvelin {
namespace {

TEST(Konfiguration, WiederherstellungNachDenFrueherenAntworten) {
    using enum Wiederherstellung;
    const Ordner ordner;
    const Configuration konfiguration(ordner / "");
    // By `AlwaysDoSo` from left to right; nothing stands for a key that is missing.
    const std::array<const char*, 5> immer{nullptr, "0", "1", "ja", ""};
    const std::vector<std::pair<const char*, std::array<Recovery, 5>>> faelle{
        {nullptr, {Ask, Ask, Always, Never, Never}},
        {"1", {Ask, Ask, Always, Never, Never}},
        {"0", {Ask, Ask, Never, Never, Never}},
        {"ja", {Ask, Ask, Never, Never, Never}},
        {"", {Ask, Ask, Never, Never, Never}}};
    for (const auto& [recover, erwartet] : faelle) {
        for (std::size_t i = 0; i < immer.size(); ++i) {
            SchreibeDatei(ordner / "config.cfg", "");
            for (const auto& [key, wert] : {std::pair(Configuration::kRecover, recover),
                                            std::pair(Configuration::kAlwaysDoSo, immer.at(i))}) {
                if (wert != nullptr) {
                    ASSERT_TRUE(konfiguration.Write({{key, wert}}));
                }
            }
            EXPECT_EQ(DecideRecovery(konfiguration), erwartet.at(i))
                << LiesDatei(ordner / "config.cfg");
        }
    }
}

TEST(Konfiguration, FehlendeKeysLesenSichAlsStandard) {
    const Ordner ordner;
    const Configuration konfiguration(ordner / "");
    for (const auto& [key, standard] :
         {std::pair(Configuration::kBaulistenwecker, "0"),
          std::pair(Configuration::kSchlafzeitenwecker, "0"), std::pair(Configuration::kMode, "1"),
          std::pair(Configuration::kPath, "~"), std::pair(Configuration::kWebPath, "http://"),
          std::pair(Configuration::kFirststart, "1"), std::pair(Configuration::kRecover, "1"),
          std::pair(Configuration::kAlwaysDoSo, "0")}) {
        EXPECT_EQ(konfiguration.Read(key), standard) << key.Key;
    }
    // Another spelling leads to the same place.
    SchreibeDatei(ordner / "config.cfg", "[skinsettings]\nwebpath=http://x\n");
    EXPECT_EQ(konfiguration.Read(Configuration::kWebPath), "http://x");
}

TEST(Konfiguration, UnbrauchbareWerteZaehlenAlsStandard) {
    const Ordner ordner;
    const Configuration konfiguration(ordner / "");
    for (const auto& [text, modus] :
         {std::pair("2", 2), std::pair("0", 0), std::pair("255", 255), std::pair("256", 1),
          std::pair("-1", 1), std::pair("", 1), std::pair("zwei", 1), std::pair("2,5", 1)}) {
        ASSERT_TRUE(konfiguration.Write(
            {{Configuration::kMode, text}, {Configuration::kBaulistenwecker, text}}));
        EXPECT_EQ(konfiguration.SkinMode(), modus) << text;
        EXPECT_FALSE(konfiguration.IsOn(Configuration::kBaulistenwecker)) << text;
    }
}

TEST(Konfiguration, KlangVomProgrammordnerOderGanzerPfad) {
    const Ordner ordner;
    const Configuration konfiguration(ordner / "");
    EXPECT_EQ(konfiguration.Alertsound(), ordner / "mfx/alert.wav");
    struct Fall {
        const char* Wert;
        /// From the program's folder; empty if the path stays.
        const char* Posix;
        const char* Windows;
    };
    for (const auto& [wert, posix, windows] :
         {Fall{"mfx/gong.wav", "mfx/gong.wav", "mfx/gong.wav"},
          Fall{"mfx\\gong.wav", "mfx/gong.wav", "mfx/gong.wav"},
          Fall{"\\mfx\\gong.wav", "mfx/gong.wav", "mfx/gong.wav"},
          Fall{"..\\gong.wav", "../gong.wav", "../gong.wav"},
          Fall{"/töne/a\\b.wav", "", "töne/a/b.wav"}, Fall{"C:\\töne\\x.wav", "C:/töne/x.wav", ""},
          Fall{"C:x.wav", "C:x.wav", "x.wav"}, Fall{"\\\\rechner\\x.wav", "rechner/x.wav", ""}}) {
        ASSERT_TRUE(konfiguration.Write({{Configuration::kAlertsound, wert}}));
        const std::string_view ziel = kWindows ? windows : posix;
        const auto alsPfad = [](std::string_view text) {
            return std::filesystem::path(std::u8string(text.begin(), text.end()));
        };
        EXPECT_EQ(konfiguration.Alertsound(),
                  ziel.empty() ? alsPfad(wert) : (ordner / "") / alsPfad(ziel))
            << wert;
    }
}

TEST(Konfiguration, SchreibtNebenFremdeZeilenUndVerliertSichOhneOrdner) {
    const Ordner ordner;
    SchreibeDatei(ordner / "config.cfg", "; von Hand\r\n[Settings]\r\nEigenes=1\r\n");
    ASSERT_TRUE(Configuration(ordner / "").Write({{Configuration::kFirststart, "0"}}));
    EXPECT_EQ(LiesDatei(ordner / "config.cfg"),
              "; von Hand\r\n[Settings]\r\nEigenes=1\r\nFirststart=0\r\n");
    // A folder can have such a name.
    ASSERT_TRUE(
        Configuration(ordner / "").Write({{Configuration::kPath, "a\n[Settings]\nFirststart=1"}}));
    EXPECT_EQ(Configuration(ordner / "").Read(Configuration::kPath), "a");
    EXPECT_EQ(Configuration(ordner / "").Read(Configuration::kFirststart), "0");
    const Configuration ohne(ordner / "fehlt");
    EXPECT_FALSE(ohne.Write({{Configuration::kFirststart, "0"}}));
    EXPECT_EQ(ohne.Read(Configuration::kFirststart), "1");
}

TEST(Wecker, KlingeltAufDieSekunde) {
    const DateTime start = *ParseDateTime("18.11.2006 12:00:00");
    const Schedule bauzeiten{{.start = start}, {.start = start + 86400}, {.start = start}};
    struct Fall {
        const char* Jetzt;
        const char* Vorher;
        std::size_t Erwartet;
    };
    for (const auto& [jetzt, vorher, erwartet] :
         {Fall{"18.11.2006 11:59:50", "10", 2}, Fall{"18.11.2006 11:59:49", "10", 0},
          Fall{"18.11.2006 11:59:51", "10", 0}, Fall{"18.11.2006 12:00:00", "0", 2},
          Fall{"18.11.2006 12:00:00", "86400", 1}, Fall{"18.11.2006 11:59:59", "86401", 0},
          Fall{"18.11.2006 12:00:00", "", 0}, Fall{"18.11.2006 11:59:59", "eins", 0},
          Fall{"18.11.2006 12:00:00", "99999999999999999999", 0}}) {
        EXPECT_EQ(DueStarts(bauzeiten, *ParseDateTime(jetzt), vorher), erwartet)
            << jetzt << " " << vorher;
    }
    EXPECT_EQ(DueStarts({}, start, "0"), 0U);
}

TEST(Wecker, KlingeltEineMinuteVorDemAufwachen) {
    const SleepTable tabelle{{"17.11.2006 22:30", "18.11.2006 06:30"},
                             {"x", "Unsinn"},
                             {"17.11.2006 23:30", "18.11.2006 06:30"}};
    EXPECT_EQ(DueSleepEnds(tabelle, *ParseDateTime("18.11.2006 06:29:00")), 2U);
    EXPECT_EQ(DueSleepEnds(tabelle, *ParseDateTime("18.11.2006 06:29:01")), 0U);
    EXPECT_EQ(DueSleepEnds(tabelle, *ParseDateTime("18.11.2006 06:30:00")), 0U);
}

TEST(Dateisystem, SchautInOrdner) {
    const Ordner ordner;
    EXPECT_EQ(GetSubfolders(ordner / ""), std::vector<std::string>{""});
    EXPECT_EQ(GetSubfolders(ordner / "fehlt"), std::vector<std::string>{""});
    for (const char* name : {"standard", "blau", ".versteckt"}) {
        std::filesystem::create_directory(ordner / name);
    }
    SchreibeDatei(ordner / "datei", "x");
    if (kWindows) {
        // A name hides nothing there.
        std::filesystem::remove(ordner / ".versteckt");
    } else {
        std::filesystem::create_directory_symlink(ordner / "blau", ordner / "zeiger");
    }
    EXPECT_EQ(GetSubfolders(ordner / ""), (std::vector<std::string>{"blau", "standard"}));
    EXPECT_TRUE(FileExists(ordner / "datei"));
    EXPECT_FALSE(FileExists(ordner / "blau"));
    EXPECT_FALSE(FileExists(ordner / "fehlt"));
}

/// A folder with the data of a program, as small as it goes.
void LegeDatenAn(const std::filesystem::path& ordner) {
    for (const char* const unter : {"img/skins/temp_webskin/images", "mfx", "saves"}) {
        std::filesystem::create_directories(ordner / unter);
    }
    SchreibeDatei(ordner / "img" / "icon.ico", "icon");
    SchreibeDatei(ordner / "mfx" / "alert.wav", "ton");
    SchreibeDatei(ordner / "saves" / "basic.tvf", "plan");
}

TEST(Programmordner, BeimProgrammWennDortGeschriebenWerdenKann) {
    const Ordner ordner;
    LegeDatenAn(ordner / "bin");
    EXPECT_EQ(ResolveProgramFolder(ordner / "bin", ordner / "nutzer").TempFolder, ordner / "bin");
    EXPECT_FALSE(std::filesystem::exists(ordner / "nutzer"));
}

TEST(Programmordner, EingerichtetesProgrammHatDieDateienBeimNutzer) {
    const Ordner ordner;
    LegeDatenAn(ordner / "share" / "tarvelin");
    std::filesystem::create_directories(ordner / "bin");
    const auto nutzer = ordner / "nutzer" / "Tarvelin";
    EXPECT_EQ(ResolveProgramFolder(ordner / "bin", nutzer).TempFolder, nutzer);
    EXPECT_EQ(LiesDatei(nutzer / "saves" / "basic.tvf"), "plan");
    EXPECT_TRUE(std::filesystem::is_directory(nutzer / "img/skins/temp_webskin/images"));

    // The user's own files stay, a lost one comes back, the starter plan doesn't.
    SchreibeDatei(nutzer / "mfx" / "alert.wav", "eigener Ton");
    SchreibeDatei(nutzer / "config.cfg", "[Settings]\r\nFirststart=0\r\n");
    std::filesystem::remove(nutzer / "img" / "icon.ico");
    std::filesystem::remove(nutzer / "saves" / "basic.tvf");
    EXPECT_EQ(ResolveProgramFolder(ordner / "bin", nutzer).TempFolder, nutzer);
    EXPECT_EQ(LiesDatei(nutzer / "mfx" / "alert.wav"), "eigener Ton");
    EXPECT_EQ(LiesDatei(nutzer / "img" / "icon.ico"), "icon");
    EXPECT_FALSE(std::filesystem::exists(nutzer / "saves" / "basic.tvf"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(ordner / "bin"), {}), 0);
}

TEST(Programmordner, OhneNutzerordnerDienenDieEigenenDateien) {
    const Ordner ordner;
    const auto eigene = ordner / "share" / "tarvelin";
    LegeDatenAn(eigene);
    SchreibeDatei(ordner / "datei", "");
    std::filesystem::create_directories(ordner / "voll" / "img");
    SchreibeDatei(ordner / "voll" / "mfx", "");
    // There is none, it can't be made, or has no room for all; nothing is thrown.
    for (const auto& nutzer : {std::filesystem::path(), ordner / "datei" / "x", ordner / "voll"}) {
        const ProgramFolder gewaehlt = ResolveProgramFolder(ordner / "bin", nutzer);
        EXPECT_EQ(gewaehlt.TempFolder, eigene) << nutzer;
        EXPECT_FALSE(gewaehlt.canKeep) << nutzer;
    }
    // Where plans lie the user keeps them in sight.
    for (const char* const datei : {"basic.tvf", "meiner.tvf"}) {
        SchreibeDatei(ordner / "voll" / "saves" / datei, "plan");
        const ProgramFolder gewaehlt = ResolveProgramFolder(ordner / "bin", ordner / "voll");
        EXPECT_EQ(gewaehlt.TempFolder == ordner / "voll", datei == std::string("meiner.tvf"));
        EXPECT_FALSE(gewaehlt.canKeep) << "what is new there has no room";
    }
}

TEST(Schreibschutz, AendertImOrdnerNichtsUndSonstAlles) {
    const Ordner ordner;
    LegeDatenAn(ordner / "eigene");
    const ProtectedFileSystem schutz({ordner / "eigene"});
    if (!kWindows) {
        std::filesystem::create_directory_symlink(ordner / "eigene", ordner / "umweg");
    }
    for (const char* const wo : {"eigene", kWindows ? "eigene/." : "umweg"}) {
        const auto plan = ordner / wo / "saves" / "basic.tvf";
        EXPECT_FALSE(SaveBauliste(plan, PlanAus("GM"), schutz));
        EXPECT_FALSE(SaveBauliste(ordner / wo / "neu.tvf", PlanAus("GM"), schutz));
        EXPECT_FALSE(schutz.Remove(plan));
        EXPECT_FALSE(schutz.Rename(plan, ordner / "weg.tvf"));
        EXPECT_EQ(ReadFileToString(plan, 100, schutz), "plan");
    }
    EXPECT_TRUE(SaveBauliste(ordner / "eigene-plaene.tvf", PlanAus("GM"), schutz));
}

TEST(Programmordner, DateidialogeBeginnenNieIrgendwo) {
    const Ordner ordner;
    EXPECT_EQ(PlanFolder(ordner / "", NativeFileSystem()), ordner / "saves") << "made anew";
    EXPECT_TRUE(std::filesystem::is_directory(ordner / "saves"));
    std::filesystem::remove(ordner / "saves");
    SchreibeDatei(ordner / "saves", "");
    EXPECT_EQ(PlanFolder(ordner / "", NativeFileSystem()).string() + "/", (ordner / "").string());
}

TEST(Programmordner, SperrtWasEinAndererBehaelt) {
    const Ordner ordner;
    std::filesystem::create_directory(ordner / "saves");
    const ProgramFolder programmordner{.TempFolder = ordner / ""};
    const ProtectedFileSystem dateien(programmordner.ReadOnlyPaths(true));
    Autosave autosave(ordner / "", dateien);
    autosave.WriteAtExit(PlanAus("GM"));
    autosave.KeepReplaced(PlanAus("GM"));
    EXPECT_FALSE(Configuration(ordner / "", dateien).Write({{Configuration::kFirststart, "0"}}));
    EXPECT_EQ(ordner.Eintraege(), 1U);
    EXPECT_TRUE(std::filesystem::is_empty(ordner / "saves"));
    EXPECT_TRUE(SaveBauliste(ordner / "saves" / "meiner.tvf", PlanAus("GM"), dateien));
    EXPECT_TRUE(programmordner.ReadOnlyPaths(false).empty());
}

TEST(Autosave, BewahrtDieLetztenFuenfErsetzten) {
    const Ordner ordner;
    const Autosave autosave(ordner / "");
    const auto liegen = [&] {
        std::string zahlen;
        for (const char* const n : {"1", "2", "3", "4", "5", "6"}) {
            const auto profil =
                IniFile::Load(ordner / "saves" / (std::string("ersetzt-") + n + ".tvf"));
            zahlen += profil ? profil->ReadINI("Bauliste", "ItemCount", "?") : "-";
        }
        return zahlen;
    };
    std::string codes;
    for (const char* const erwartet :
         {"1-----", "21----", "321---", "4321--", "54321-", "65432-"}) {
        codes += codes.empty() ? "GM" : " GM";
        autosave.KeepReplaced(PlanAus(codes));
        autosave.KeepReplaced(PlanAus(codes));
        autosave.KeepReplaced(PlanAus(""));
        EXPECT_EQ(liegen(), erwartet) << "neither twice nor empty";
    }
    std::filesystem::remove(ordner / "saves" / "ersetzt-3.tvf");
    autosave.KeepReplaced(PlanAus("GM"));
    EXPECT_EQ(liegen(), "16532-") << "a gap is filled before the oldest goes";
    // Whichever call fails, all that was there is there, and mostly the new one as well.
    for (int n = 1;; ++n) {
        std::filesystem::remove_all(ordner / "saves");
        for (const char* const plan : {"GM", "GM GM", "GM GM GM"}) {
            autosave.KeepReplaced(PlanAus(plan));
        }
        const Stoersystem kaputt(n, Ausfallart::Einmal);
        Autosave(ordner / "", kaputt).KeepReplaced(PlanAus("GM GM GM GM"));
        std::string da = liegen();
        for (const char plan : {'1', '2', '3'}) {
            EXPECT_NE(da.find(plan), std::string::npos) << da << kaputt.Gestoert();
        }
        if (kaputt.Gestoert().empty()) {
            EXPECT_EQ(da, "4321--");
            break;
        }
    }
    EXPECT_TRUE(autosave.IsOwnFile(ordner / "saves" / ".." / "saves" / "ersetzt-3.tvf"));
    EXPECT_FALSE(autosave.IsOwnFile(ordner / "saves" / "ersetzt-6.tvf"));
}

/// The steps of a session, and the plans that lie there after each; "" for none.
TEST(Autosave, BewahrtDenPlanDerLetztenSitzung) {
    const Ordner ordner;
    std::filesystem::create_directory(ordner / "saves");
    const auto zeilen = [&](const char* datei) {
        const auto profil = IniFile::Load(ordner / "saves" / datei);
        return profil ? profil->ReadINI("Bauliste", "ItemCount", "?") : "";
    };
    struct Fall {
        const char* Codes;
        bool NeueSitzung;
        const char* Plan;
        const char* Vorige;
    };
    std::optional<Autosave> autosave(ordner / "");
    for (const auto& [codes, neueSitzung, plan, vorige] :
         {Fall{"GM", false, "1", ""}, Fall{"GM GM", false, "2", ""}, Fall{"GM GM", true, "2", ""},
          Fall{"GM GM GM", false, "3", "2"}, Fall{"", false, "0", "2"}, Fall{"GM", true, "1", "2"},
          Fall{"", true, "0", "1"}}) {
        SCOPED_TRACE(std::string(codes) + " " + plan);
        if (neueSitzung) {
            autosave.emplace(ordner / "");
        }
        EXPECT_TRUE(autosave->Write(PlanAus(codes)));
        EXPECT_EQ(zeilen("autosave.tvf"), plan);
        EXPECT_EQ(zeilen("autosave-vorige.tvf"), vorige);
    }
    // What was tried in vain is tried again when it changes, and at the end.
    const auto datei = ordner / "saves" / "autosave.tvf";
    const Stoersystem kaputt(1, Ausfallart::AllesFuerImmer);
    Autosave gestoert(ordner / "", kaputt);
    gestoert.WriteIfChanged(PlanAus("GM"));
    EXPECT_EQ(kaputt.Gestoert(), "LegeOrdnerAn");
    // Where the last plan can't be kept under its name it gets another, and else stays until the
    // end.
    const auto versperre = [&](const char* name) {
        std::filesystem::remove(ordner / "saves" / name);
        std::filesystem::create_directories(ordner / "saves" / name / "x");
    };
    versperre("autosave-vorige.tvf");
    ASSERT_TRUE(autosave->Write(PlanAus("GM GM GM")));
    EXPECT_TRUE(Autosave(ordner / "").Write(PlanAus("GM GM")));
    EXPECT_EQ(zeilen("autosave-vorige-2.tvf"), "3");
    versperre("autosave-vorige-2.tvf");
    Autosave ohneVorige(ordner / "");
    EXPECT_FALSE(ohneVorige.Write(PlanAus("GM")));
    EXPECT_EQ(zeilen("autosave.tvf"), "2");
    ohneVorige.WriteIfChanged(PlanAus("GM"));
    ohneVorige.WriteAtExit(PlanAus("GM"));
    EXPECT_EQ(zeilen("autosave.tvf"), "1");
}

}  // namespace
}  // namespace tarvelin
