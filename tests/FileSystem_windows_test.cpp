// Tests the file layer on Windows: files in use, hidden folders, long paths.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>

#include <thread>

#include "TestSupport.h"
#include "persistence/ProgramFolder.h"
#include "persistence/ProtectedFileSystem.h"

namespace tarvelin {
namespace {

/// Holds a file open as a virus scanner or an editor does: nobody else may replace it, or even read
/// it.
class FileHolder {
  public:
    FileHolder(const std::filesystem::path& file, DWORD share)
        : m_handle(::CreateFileW(file.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0,
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
    for (const DWORD share : {DWORD{FILE_SHARE_READ}, DWORD{0}}) {
        ASSERT_TRUE(SaveBauliste(file, PlanOf("GM")));
        const std::string before = ReadFileToString(file);
        {
            const FileHolder always(file, share);
            EXPECT_FALSE(SaveBauliste(file, PlanOf("GM GS")));
        }
        EXPECT_EQ(ReadFileToString(file), before);
        EXPECT_EQ(folder.Entries(), 1U);
        FileHolder holder(file, share);
        std::thread releasing([&] {
            constexpr DWORD kMilliseconds = 20;
            ::Sleep(kMilliseconds);
            holder.Release();
        });
        EXPECT_TRUE(SaveBauliste(file, PlanOf("GM GS")));
        releasing.join();
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

/// Deletes a folder whose path may be too long for the standard library.
void Clear(const std::filesystem::path& folder) {
    for (const auto& entry : NativeFileSystem().Entries(folder)) {
        if (NativeFileSystem().KindOf(entry) == FileSystem::Kind::Folder) {
            Clear(entry);
        } else {
            EXPECT_TRUE(NativeFileSystem().Remove(entry));
        }
    }
    const auto path = NativeFileSystem().Resolve(folder);
    EXPECT_NE(::RemoveDirectoryW(path->c_str()), 0) << ::GetLastError();
}

TEST(WindowsFileSystem, CopesWithLongPaths) {
    const TempFolder folder;
    std::filesystem::path path = folder / "lang";
    for (int i = 0; i < 6; ++i) {
        path /= L"Größe – 星のプラン " + std::wstring(50, L'x');
    }
    const auto file = path / "saves" / "plan.tvf";
    ASSERT_GT(file.native().size(), 300U);
    // An installed program, whose files are copied to the long path.
    ASSERT_TRUE(NativeFileSystem().CreateFolders(folder / "share/tarvelin/img/skins/blau"));
    WriteFile(folder / "share/tarvelin/img/icon.ico", "icon");
    const auto chosen = ResolveProgramFolder(folder / "bin", path);
    EXPECT_EQ(chosen.path, path);
    EXPECT_TRUE(chosen.canKeep);
    EXPECT_EQ(ReadFileToString(path / "img/icon.ico", 9, NativeFileSystem()), "icon");
    EXPECT_EQ(GetSubfolders(path / "img/skins"), std::vector<std::string>{"blau"});
    for (const char* const codes : {"GM", "GM GS"}) {
        ASSERT_TRUE(SaveBauliste(file, PlanOf(codes)));
        const auto profile = IniFile::Load(file);
        ASSERT_TRUE(profile);
        EXPECT_EQ(profile->ReadINI("Bauliste", "ItemCount", ""),
                  codes == std::string("GM") ? "1" : "2");
    }
    EXPECT_TRUE(FileExists(file));
    EXPECT_EQ(NativeFileSystem().KindOf(path / "fehlt.tvf"), FileSystem::Kind::Nothing);
    EXPECT_FALSE(SaveBauliste(file, PlanOf("GM"), ProtectedFileSystem({path})));
    Clear(folder / "lang");
}

}  // namespace
}  // namespace tarvelin
