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
class FileHolder {
  public:
    FileHolder(const std::filesystem::path& file, DWORD leave)
        : m_handle(::CreateFileW(file.c_str(), GENERIC_READ, leave, nullptr, OPEN_EXISTING, 0,
                                 nullptr)) {
        EXPECT_NE(m_handle, INVALID_HANDLE_VALUE);
    }
    FileHolder(const FileHolder&) = delete;
    FileHolder& operator=(const FileHolder&) = delete;
    ~FileHolder() { Release(); }

    void Release() {
        if (m_handle != INVALID_HANDLE_VALUE) {
            ::CloseHandle(std::exchange(m_handle, INVALID_HANDLE_VALUE));
        }
    }

  private:
    HANDLE m_handle;
};

TEST(WindowsFileSystem, WaitsForFilesInUse) {
    const TempFolder folder;
    const auto file = folder / "plan.tvf";
    for (const DWORD leave : {DWORD{FILE_SHARE_READ}, DWORD{0}}) {
        ASSERT_TRUE(SaveBauliste(file, PlanOf("GM")));
        const std::string before = ReadFileToString(file);
        {
            const FileHolder always(file, leave);
            EXPECT_FALSE(SaveBauliste(file, PlanOf("GM GS")));
        }
        EXPECT_EQ(ReadFileToString(file), before);
        EXPECT_EQ(folder.Entries(), 1U);
        FileHolder shortPlan(file, leave);
        std::thread same([&] {
            constexpr DWORD kWhile = 20;
            ::Sleep(kWhile);
            shortPlan.Release();
        });
        EXPECT_TRUE(SaveBauliste(file, PlanOf("GM GS")));
        same.join();
        EXPECT_NE(ReadFileToString(file), before);
        EXPECT_EQ(folder.Entries(), 1U);
    }
}

TEST(WindowsFileSystem, ListsPlainFolders) {
    const TempFolder folder;
    struct Case {
        const wchar_t* name;
        DWORD attributes;
    };
    for (const auto& [name, attribute] :
         {Case{L"blau", 0}, Case{L"versteckt", FILE_ATTRIBUTE_HIDDEN},
          Case{L"system", FILE_ATTRIBUTE_SYSTEM},
          Case{L"ohne Index", FILE_ATTRIBUTE_NOT_CONTENT_INDEXED}}) {
        const std::filesystem::path under = (folder / "") / name;
        std::filesystem::create_directory(under);
        ASSERT_NE(::SetFileAttributesW(under.c_str(), FILE_ATTRIBUTE_DIRECTORY | attribute), 0);
    }
    EXPECT_EQ(GetSubfolders(folder / ""), (std::vector<std::string>{"blau", "ohne Index"}));
}

/// Deletes a folder whose path may be long, which the library can't.
void Clear(const std::filesystem::path& folder) {
    for (const auto& entry : NativeFileSystem().Entries(folder)) {
        if (NativeFileSystem().KindOf(entry) == FileSystem::Kind::TempFolder) {
            Clear(entry);
        } else {
            EXPECT_TRUE(NativeFileSystem().Remove(entry));
        }
    }
    const auto position = NativeFileSystem().Resolve(folder);
    EXPECT_NE(::RemoveDirectoryW(position->c_str()), 0) << ::GetLastError();
}

TEST(WindowsFileSystem, CopesWithLongPaths) {
    const TempFolder folder;
    std::filesystem::path position = folder / "lang";
    for (int i = 0; i < 6; ++i) {
        position /= L"Größe – 星のプラン " + std::wstring(50, L'x');
    }
    const auto file = position / "saves" / "plan.tvf";
    ASSERT_GT(file.native().size(), 300U);
    // A folder of a program, with its files in it.
    ASSERT_TRUE(NativeFileSystem().CreateFolders(folder / "share/tarvelin/img/skins/blau"));
    WriteFile(folder / "share/tarvelin/img/icon.ico", "icon");
    const auto chosen = ResolveProgramFolder(folder / "bin", position);
    EXPECT_EQ(chosen.TempFolder, position);
    EXPECT_TRUE(chosen.canKeep);
    EXPECT_EQ(ReadFileToString(position / "img/icon.ico", 9, NativeFileSystem()), "icon");
    EXPECT_EQ(GetSubfolders(position / "img/skins"), std::vector<std::string>{"blau"});
    for (const char* const codes : {"GM", "GM GS"}) {
        ASSERT_TRUE(SaveBauliste(file, PlanOf(codes)));
        const auto profile = IniFile::Load(file);
        ASSERT_TRUE(profile);
        EXPECT_EQ(profile->ReadINI("Bauliste", "ItemCount", ""),
                  codes == std::string("GM") ? "1" : "2");
    }
    EXPECT_TRUE(FileExists(file));
    EXPECT_EQ(NativeFileSystem().KindOf(position / "fehlt.tvf"), FileSystem::Kind::Nothing);
    EXPECT_FALSE(SaveBauliste(file, PlanOf("GM"), ProtectedFileSystem({position})));
    Clear(folder / "lang");
}

}  // namespace
}  // namespace tarvelin
