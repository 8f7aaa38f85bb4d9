// Tests the configuration, due alarms, the program's folder and the autosave.
#include <optional>

#include "FaultyFileSystem.h"
#include "TestSupport.h"
#include "persistence/Autosave.h"
#include "persistence/Configuration.h"
#include "persistence/ProgramFolder.h"
#include "persistence/ProtectedFileSystem.h"
#include "simulation/DueAlarms.h"
#include "util/Utf8.h"

namespace tarvelin {
namespace {

TEST(Configuration, RecoversAsAnsweredBefore) {
    using enum Recovery;
    const TempFolder folder;
    for (const auto& [bytes, expected] :
         {std::pair("", Ask), std::pair("Recover=0\n", Ask), std::pair("Recover=ja\n", Ask),
          std::pair("AlwaysDoSo=0\n", Ask), std::pair("AlwaysDoSo=0\nRecover=0\n", Ask),
          std::pair("AlwaysDoSo=1\n", Always), std::pair("AlwaysDoSo=1\nRecover=1\n", Always),
          std::pair("AlwaysDoSo=1\nRecover=0\n", Never),
          std::pair("AlwaysDoSo=1\nRecover=\n", Never), std::pair("AlwaysDoSo=ja\n", Never),
          std::pair("AlwaysDoSo=\nRecover=1\n", Never)}) {
        WriteFile(folder / "config.cfg", std::string("[StartSettings]\n") + bytes);
        EXPECT_EQ(DecideRecovery(Configuration(folder / "")), expected) << bytes;
    }
}

TEST(Configuration, UnusableValuesCountAsTheDefault) {
    const TempFolder folder;
    const Configuration configuration(folder / "");
    for (const auto& [text, mode] :
         {std::pair("2", 2), std::pair("0", 0), std::pair("255", 255), std::pair("256", 1),
          std::pair("-1", 1), std::pair("", 1), std::pair("zwei", 1), std::pair("2,5", 1)}) {
        ASSERT_TRUE(configuration.Write(
            {{Configuration::kMode, text}, {Configuration::kBaulistenwecker, text}}));
        EXPECT_EQ(configuration.SkinMode(), mode) << text;
        EXPECT_FALSE(configuration.IsOn(Configuration::kBaulistenwecker)) << text;
    }
}

TEST(Configuration, SoundIsInTheProgramFolderOrAtAnAbsolutePath) {
    const TempFolder folder;
    const Configuration configuration(folder / "");
    EXPECT_EQ(configuration.Alertsound(), folder / "mfx/alert.wav");
    // The value, and the path relative to the program's folder on each platform; "" if absolute.
    using Case = std::array<const char*, 3>;
    for (const auto& [value, posix, windows] :
         {Case{"mfx/gong.wav", "mfx/gong.wav", "mfx/gong.wav"},
          Case{"\\mfx\\gong.wav", "mfx/gong.wav", "mfx/gong.wav"},
          Case{"..\\gong.wav", "../gong.wav", "../gong.wav"},
          Case{"/töne/a\\b.wav", "", "töne/a/b.wav"}, Case{"C:\\töne\\x.wav", "C:/töne/x.wav", ""},
          Case{"C:x.wav", "C:x.wav", "x.wav"}, Case{"\\\\rechner\\x.wav", "rechner/x.wav", ""}}) {
        ASSERT_TRUE(configuration.Write({{Configuration::kAlertsound, value}}));
        const std::string_view target = kWindows ? windows : posix;
        EXPECT_EQ(configuration.Alertsound(),
                  target.empty() ? PathFromUtf8(value) : (folder / "") / PathFromUtf8(target))
            << value;
    }
}

TEST(Configuration, KeepsForeignLinesAndWorksWithoutAFolder) {
    const TempFolder folder;
    WriteFile(folder / "config.cfg", "; von Hand\r\n[Settings]\r\nEigenes=1\r\n");
    ASSERT_TRUE(Configuration(folder / "").Write({{Configuration::kFirststart, "0"}}));
    EXPECT_EQ(ReadFileToString(folder / "config.cfg"),
              "; von Hand\r\n[Settings]\r\nEigenes=1\r\nFirststart=0\r\n");
    // A folder may have a line end in its name.
    ASSERT_TRUE(
        Configuration(folder / "").Write({{Configuration::kPath, "a\n[Settings]\nFirststart=1"}}));
    EXPECT_EQ(Configuration(folder / "").Read(Configuration::kPath), "a");
    EXPECT_EQ(Configuration(folder / "").Read(Configuration::kFirststart), "0");
    const Configuration without(folder / "fehlt");
    EXPECT_FALSE(without.Write({{Configuration::kFirststart, "0"}}));
    std::string defaults;
    for (const ConfigKey& key :
         {Configuration::kBaulistenwecker, Configuration::kSchlafzeitenwecker, Configuration::kMode,
          Configuration::kPath, Configuration::kWebPath, Configuration::kFirststart}) {
        defaults += without.Read(key) + " ";
    }
    EXPECT_EQ(defaults, "0 0 1 ~ http:// 1 ");
}

TEST(DueAlarms, RingToTheSecond) {
    const DateTime noon = *ParseDateTime("18.11.2006 12:00:00");
    const Schedule schedule{{.start = noon}, {.start = noon + 86400}, {.start = noon}};
    const auto due = [&](std::int64_t fromNoon, const char* before) {
        return DueStarts(schedule, noon + fromNoon, before);
    };
    EXPECT_EQ(due(-10, "10"), 2U);
    EXPECT_EQ(due(-11, "10") + due(-9, "10"), 0U);
    EXPECT_EQ(due(0, "0"), 2U);
    EXPECT_EQ(due(0, "86400"), 1U);
    for (const char* const unusable : {"86401", "", "eins", "99999999999999999999"}) {
        EXPECT_EQ(due(-1, unusable), 0U) << unusable;
    }
}

TEST(DueAlarms, RingAMinuteBeforeWaking) {
    const SleepTable table{{"17.11.2006 22:30", "18.11.2006 06:30"},
                           {"x", "Unsinn"},
                           {"17.11.2006 23:30", "18.11.2006 06:30"}};
    EXPECT_EQ(DueSleepEnds(table, *ParseDateTime("18.11.2006 06:29:00")), 2U);
    EXPECT_EQ(DueSleepEnds(table, *ParseDateTime("18.11.2006 06:29:01")), 0U);
    EXPECT_EQ(DueSleepEnds(table, *ParseDateTime("18.11.2006 06:30:00")), 0U);
}

TEST(FileSystem, ListsSubfolders) {
    const TempFolder folder;
    EXPECT_EQ(GetSubfolders(folder / ""), std::vector<std::string>{""});
    EXPECT_EQ(GetSubfolders(folder / "fehlt"), std::vector<std::string>{""});
    for (const char* name : {"standard", "blau", ".versteckt"}) {
        std::filesystem::create_directory(folder / name);
    }
    WriteFile(folder / "datei", "x");
    if (kWindows) {
        // A leading dot hides nothing on Windows.
        std::filesystem::remove(folder / ".versteckt");
    } else {
        std::filesystem::create_directory_symlink(folder / "blau", folder / "zeiger");
    }
    EXPECT_EQ(GetSubfolders(folder / ""), (std::vector<std::string>{"blau", "standard"}));
    EXPECT_TRUE(FileExists(folder / "datei"));
    EXPECT_FALSE(FileExists(folder / "blau"));
    EXPECT_FALSE(FileExists(folder / "fehlt"));
}

/// Makes a folder with the least of a program's data.
void CreateData(const std::filesystem::path& folder) {
    for (const char* const subfolder :
         {"img/skins/temp_webskin/images", "mfx", "saves", "openings"}) {
        std::filesystem::create_directories(folder / subfolder);
    }
    WriteFile(folder / "img" / "icon.ico", "icon");
    WriteFile(folder / "mfx" / "alert.wav", "ton");
    WriteFile(folder / "saves" / "basic.tvf", "plan");
    WriteFile(folder / "openings" / "klassisch.tvf", "plan");
}

TEST(ProgramFolder, IsBesideTheProgramIfItIsWritable) {
    const TempFolder folder;
    CreateData(folder / "bin");
    EXPECT_EQ(ResolveProgramFolder(folder / "bin", folder / "nutzer").path, folder / "bin");
    EXPECT_FALSE(std::filesystem::exists(folder / "nutzer"));
}

TEST(ProgramFolder, InstalledProgramCopiesItsFilesToTheUser) {
    const TempFolder folder;
    CreateData(folder / "share" / "tarvelin");
    std::filesystem::create_directories(folder / "bin");
    const auto user = folder / "nutzer" / "Tarvelin";
    EXPECT_EQ(ResolveProgramFolder(folder / "bin", user).path, user);
    EXPECT_EQ(ReadFileToString(user / "saves" / "basic.tvf"), "plan");
    EXPECT_EQ(ReadFileToString(user / "openings" / "klassisch.tvf"), "plan");
    EXPECT_TRUE(std::filesystem::is_directory(user / "img/skins/temp_webskin/images"));

    // Files of the user's own stay and missing ones are restored, but for the starter plan.
    WriteFile(user / "mfx" / "alert.wav", "eigener Ton");
    WriteFile(user / "config.cfg", "[Settings]\r\nFirststart=0\r\n");
    std::filesystem::remove(user / "img" / "icon.ico");
    std::filesystem::remove(user / "saves" / "basic.tvf");
    EXPECT_EQ(ResolveProgramFolder(folder / "bin", user).path, user);
    EXPECT_EQ(ReadFileToString(user / "mfx" / "alert.wav"), "eigener Ton");
    EXPECT_EQ(ReadFileToString(user / "img" / "icon.ico"), "icon");
    EXPECT_FALSE(std::filesystem::exists(user / "saves" / "basic.tvf"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder / "bin"), {}), 0);
}

TEST(ProgramFolder, ReadsItsOwnFilesWithoutAUserFolder) {
    const TempFolder folder;
    const auto own = folder / "share" / "tarvelin";
    CreateData(own);
    WriteFile(folder / "datei", "");
    std::filesystem::create_directories(folder / "voll" / "img");
    WriteFile(folder / "voll" / "mfx", "");
    // The user's folder is missing, can't be made, or can't take all files; nothing is thrown.
    for (const auto& user : {std::filesystem::path(), folder / "datei" / "x", folder / "voll"}) {
        const ProgramFolder chosen = ResolveProgramFolder(folder / "bin", user);
        EXPECT_EQ(chosen.path, own) << user;
        EXPECT_FALSE(chosen.canKeep) << user;
    }
    // If the user's folder has plans, it is used all the same, so that they stay in sight.
    for (const char* const file : {"basic.tvf", "meiner.tvf"}) {
        WriteFile(folder / "voll" / "saves" / file, "plan");
        const ProgramFolder chosen = ResolveProgramFolder(folder / "bin", folder / "voll");
        EXPECT_EQ(chosen.path == folder / "voll", file == std::string("meiner.tvf"));
        EXPECT_FALSE(chosen.canKeep) << "what is new there has no room";
    }
}

TEST(ProtectedFileSystem, ProtectsItsFolderAlone) {
    const TempFolder folder;
    CreateData(folder / "eigene");
    const ProtectedFileSystem protection({folder / "eigene"});
    if (!kWindows) {
        std::filesystem::create_directory_symlink(folder / "eigene", folder / "umweg");
    }
    for (const char* const where : {"eigene", kWindows ? "eigene/." : "umweg"}) {
        const auto plan = folder / where / "saves" / "basic.tvf";
        EXPECT_FALSE(SaveBauliste(plan, PlanOf("GM"), protection));
        EXPECT_FALSE(SaveBauliste(folder / where / "neu.tvf", PlanOf("GM"), protection));
        EXPECT_FALSE(protection.Remove(plan));
        EXPECT_FALSE(protection.Rename(plan, folder / "weg.tvf"));
        EXPECT_EQ(ReadFileToString(plan, 100, protection), "plan");
    }
    EXPECT_TRUE(SaveBauliste(folder / "eigene-plaene.tvf", PlanOf("GM"), protection));
}

TEST(ProgramFolder, FileDialogsBeginInAKnownFolder) {
    const TempFolder folder;
    EXPECT_EQ(PlanFolder(folder / "", NativeFileSystem()), folder / "saves") << "made anew";
    EXPECT_TRUE(std::filesystem::is_directory(folder / "saves"));
    std::filesystem::remove(folder / "saves");
    WriteFile(folder / "saves", "");
    EXPECT_EQ(PlanFolder(folder / "", NativeFileSystem()) / "", folder / "");
}

TEST(ProgramFolder, ProtectsWhatAnotherWindowKeeps) {
    const TempFolder folder;
    std::filesystem::create_directory(folder / "saves");
    const ProgramFolder programFolder{.path = folder / ""};
    const ProtectedFileSystem files(programFolder.ReadOnlyPaths(true));
    Autosave autosave(folder / "", files);
    autosave.WriteAtExit(PlanOf("GM"));
    autosave.KeepReplaced(PlanOf("GM"));
    EXPECT_FALSE(Configuration(folder / "", files).Write({{Configuration::kFirststart, "0"}}));
    EXPECT_EQ(folder.Entries(), 1U);
    EXPECT_TRUE(std::filesystem::is_empty(folder / "saves"));
    EXPECT_TRUE(SaveBauliste(folder / "saves" / "meiner.tvf", PlanOf("GM"), files));
    EXPECT_TRUE(programFolder.ReadOnlyPaths(false).empty());
}

TEST(Autosave, KeepsTheLastFiveReplacedPlans) {
    const TempFolder folder;
    const Autosave autosave(folder / "");
    const auto kept = [&] {
        std::string counts;
        for (const char* const n : {"1", "2", "3", "4", "5", "6"}) {
            const auto profile =
                IniFile::Load(folder / "saves" / (std::string("ersetzt-") + n + ".tvf"));
            counts += profile ? profile->ReadINI("Bauliste", "ItemCount", "?") : "-";
        }
        return counts;
    };
    std::string codes;
    for (const char* const expected :
         {"1-----", "21----", "321---", "4321--", "54321-", "65432-"}) {
        codes += codes.empty() ? "GM" : " GM";
        autosave.KeepReplaced(PlanOf(codes));
        autosave.KeepReplaced(PlanOf(codes));
        autosave.KeepReplaced(PlanOf(""));
        EXPECT_EQ(kept(), expected) << "neither twice nor empty";
    }
    std::filesystem::remove(folder / "saves" / "ersetzt-3.tvf");
    autosave.KeepReplaced(PlanOf("GM"));
    EXPECT_EQ(kept(), "16532-") << "a gap is filled before the oldest goes";
    // Whichever call fails, no plan that was there is lost.
    for (int n = 1;; ++n) {
        std::filesystem::remove_all(folder / "saves");
        for (const char* const plan : {"GM", "GM GM", "GM GM GM"}) {
            autosave.KeepReplaced(PlanOf(plan));
        }
        const FaultyFileSystem broken(n, FaultKind::Once);
        Autosave(folder / "", broken).KeepReplaced(PlanOf("GM GM GM GM"));
        std::string present = kept();
        for (const char plan : {'1', '2', '3'}) {
            EXPECT_NE(present.find(plan), std::string::npos) << present << broken.Faulty();
        }
        if (broken.Faulty().empty()) {
            EXPECT_EQ(present, "4321--");
            break;
        }
    }
    EXPECT_TRUE(autosave.IsOwnFile(folder / "saves" / ".." / "saves" / "ersetzt-3.tvf"));
    EXPECT_FALSE(autosave.IsOwnFile(folder / "saves" / "ersetzt-6.tvf"));
}

/// Plans of several sessions, with the rows of both files after each write; "" for no file.
TEST(Autosave, KeepsThePlanOfTheLastSession) {
    const TempFolder folder;
    std::filesystem::create_directory(folder / "saves");
    const auto rows = [&](const char* file) {
        const auto profile = IniFile::Load(folder / "saves" / file);
        return profile ? profile->ReadINI("Bauliste", "ItemCount", "?") : "";
    };
    struct Case {
        const char* codes;
        bool newSession;
        const char* plan;
        const char* previous;
    };
    std::optional<Autosave> autosave(folder / "");
    for (const auto& [codes, newSession, plan, previous] :
         {Case{"GM", false, "1", ""}, Case{"GM GM", false, "2", ""}, Case{"GM GM", true, "2", ""},
          Case{"GM GM GM", false, "3", "2"}, Case{"", false, "0", "2"}, Case{"GM", true, "1", "2"},
          Case{"", true, "0", "1"}}) {
        SCOPED_TRACE(std::string(codes) + " " + plan);
        if (newSession) {
            autosave.emplace(folder / "");
        }
        EXPECT_TRUE(autosave->Write(PlanOf(codes)));
        EXPECT_EQ(rows("autosave.tvf"), plan);
        EXPECT_EQ(rows("autosave-vorige.tvf"), previous);
    }
    // A failed write is repeated only when the plan changes, and at the end.
    const auto file = folder / "saves" / "autosave.tvf";
    const FaultyFileSystem broken(1, FaultKind::EverythingForever);
    Autosave disturbed(folder / "", broken);
    disturbed.WriteIfChanged(PlanOf("GM"));
    EXPECT_EQ(broken.Faulty(), "CreateFolders");
    // If the previous plan can't be kept under its name, it gets another one. If that fails
    // too, it isn't overwritten before the program ends.
    const auto block = [&](const char* name) {
        std::filesystem::remove(folder / "saves" / name);
        std::filesystem::create_directories(folder / "saves" / name / "x");
    };
    block("autosave-vorige.tvf");
    ASSERT_TRUE(autosave->Write(PlanOf("GM GM GM")));
    EXPECT_TRUE(Autosave(folder / "").Write(PlanOf("GM GM")));
    EXPECT_EQ(rows("autosave-vorige-2.tvf"), "3");
    block("autosave-vorige-2.tvf");
    Autosave withoutPrevious(folder / "");
    EXPECT_FALSE(withoutPrevious.Write(PlanOf("GM")));
    EXPECT_EQ(rows("autosave.tvf"), "2");
    withoutPrevious.WriteIfChanged(PlanOf("GM"));
    withoutPrevious.WriteAtExit(PlanOf("GM"));
    EXPECT_EQ(rows("autosave.tvf"), "1");
}

}  // namespace
}  // namespace tarvelin
