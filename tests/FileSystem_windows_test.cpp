// Saves where other programs hold files open, and paths of any length.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>

#include <thread>

#include "TestSupport.h"
#include "persistence/ProgramFolder.h"
#include "persistence/ProtectedFileSystem.h"

namespace tarvelin {
namespace {

/// As a virus scanner or an editor holds a file: nobody may replace it, or even read it.
class Halter {
  public:
    Halter(const std::filesystem::path& datei, DWORD lassen)
        : m_griff(::CreateFileW(datei.c_str(), GENERIC_READ, lassen, nullptr, OPEN_EXISTING, 0,
                                nullptr)) {
        EXPECT_NE(m_griff, INVALID_HANDLE_VALUE);
    }
    Halter(const Halter&) = delete;
    Halter& operator=(const Halter&) = delete;
    ~Halter() { LassLos(); }

    void LassLos() {
        if (m_griff != INVALID_HANDLE_VALUE) {
            ::CloseHandle(std::exchange(m_griff, INVALID_HANDLE_VALUE));
        }
    }

  private:
    HANDLE m_griff;
};

TEST(DateisystemWindows, WartetAufDenDerEineDateiHaelt) {
    const Ordner ordner;
    const auto datei = ordner / "plan.tvf";
    for (const DWORD lassen : {DWORD{FILE_SHARE_READ}, DWORD{0}}) {
        ASSERT_TRUE(SaveBauliste(datei, PlanAus("GM")));
        const std::string alt = LiesDatei(datei);
        {
            const Halter immer(datei, lassen);
            EXPECT_FALSE(SaveBauliste(datei, PlanAus("GM GS")));
        }
        EXPECT_EQ(LiesDatei(datei), alt);
        EXPECT_EQ(ordner.Eintraege(), 1U);
        Halter kurz(datei, lassen);
        std::thread gleich([&] {
            constexpr DWORD kWeile = 20;
            ::Sleep(kWeile);
            kurz.LassLos();
        });
        EXPECT_TRUE(SaveBauliste(datei, PlanAus("GM GS")));
        gleich.join();
        EXPECT_NE(LiesDatei(datei), alt);
        EXPECT_EQ(ordner.Eintraege(), 1U);
    }
}

TEST(DateisystemWindows, ZeigtSchlichteOrdner) {
    const Ordner ordner;
    struct Fall {
        const wchar_t* Name;
        DWORD Attribute;
    };
    for (const auto& [name, attribute] :
         {Fall{L"blau", 0}, Fall{L"versteckt", FILE_ATTRIBUTE_HIDDEN},
          Fall{L"system", FILE_ATTRIBUTE_SYSTEM},
          Fall{L"ohne Index", FILE_ATTRIBUTE_NOT_CONTENT_INDEXED}}) {
        const std::filesystem::path unter = (ordner / "") / name;
        std::filesystem::create_directory(unter);
        ASSERT_NE(::SetFileAttributesW(unter.c_str(), FILE_ATTRIBUTE_DIRECTORY | attribute), 0);
    }
    EXPECT_EQ(GetSubfolders(ordner / ""), (std::vector<std::string>{"blau", "ohne Index"}));
}

/// Deletes a folder whose path may be long, which the library can't.
void Raeume(const std::filesystem::path& ordner) {
    for (const auto& eintrag : NativeFileSystem().Entries(ordner)) {
        if (NativeFileSystem().KindOf(eintrag) == FileSystem::Kind::TempFolder) {
            Raeume(eintrag);
        } else {
            EXPECT_TRUE(NativeFileSystem().Remove(eintrag));
        }
    }
    const auto ort = NativeFileSystem().Resolve(ordner);
    EXPECT_NE(::RemoveDirectoryW(ort->c_str()), 0) << ::GetLastError();
}

TEST(DateisystemWindows, KommtMitLangenPfadenZurecht) {
    const Ordner ordner;
    std::filesystem::path ort = ordner / "lang";
    for (int i = 0; i < 6; ++i) {
        ort /= L"Größe – 星のプラン " + std::wstring(50, L'x');
    }
    const auto datei = ort / "saves" / "plan.tvf";
    ASSERT_GT(datei.native().size(), 300U);
    // A folder of a program, with its files in it.
    ASSERT_TRUE(NativeFileSystem().CreateFolders(ordner / "share/tarvelin/img/skins/blau"));
    SchreibeDatei(ordner / "share/tarvelin/img/icon.ico", "icon");
    const auto gewaehlt = ResolveProgramFolder(ordner / "bin", ort);
    EXPECT_EQ(gewaehlt.TempFolder, ort);
    EXPECT_TRUE(gewaehlt.canKeep);
    EXPECT_EQ(ReadFileToString(ort / "img/icon.ico", 9, NativeFileSystem()), "icon");
    EXPECT_EQ(GetSubfolders(ort / "img/skins"), std::vector<std::string>{"blau"});
    for (const char* const codes : {"GM", "GM GS"}) {
        ASSERT_TRUE(SaveBauliste(datei, PlanAus(codes)));
        const auto profil = IniFile::Load(datei);
        ASSERT_TRUE(profil);
        EXPECT_EQ(profil->ReadINI("Bauliste", "ItemCount", ""),
                  codes == std::string("GM") ? "1" : "2");
    }
    EXPECT_TRUE(FileExists(datei));
    EXPECT_EQ(NativeFileSystem().KindOf(ort / "fehlt.tvf"), FileSystem::Kind::Nothing);
    EXPECT_FALSE(SaveBauliste(datei, PlanAus("GM"), ProtectedFileSystem({ort})));
    Raeume(ordner / "lang");
}

}  // namespace
}  // namespace tarvelin
