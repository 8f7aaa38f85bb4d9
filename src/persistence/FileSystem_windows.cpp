// The calls on Windows.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "persistence/FileSystem.h"

namespace tarvelin {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kHappen = std::size_t{1} << 20U;

/// A path as the system reads it whatever its length and letters: whole, behind a mark. The mark
/// ends the system's own reading of ".", ".." and "/" in it. Empty if the path is none.
std::wstring Lesbar(const fs::path& pfad) {
    std::wstring voll(::GetFullPathNameW(pfad.c_str(), 0, nullptr, nullptr), L'\0');
    voll.resize(
        ::GetFullPathNameW(pfad.c_str(), static_cast<DWORD>(voll.size()), voll.data(), nullptr));
    if (voll.empty() || voll.starts_with(LR"(\\?\)") || voll.starts_with(LR"(\\.\)")) {
        return voll;
    }
    const bool freigabe = voll.starts_with(LR"(\\)");
    return freigabe ? LR"(\\?\UNC\)" + voll.substr(2) : LR"(\\?\)" + voll;
}

/// A file, folder or device that is looked at, however others hold it.
class Blick {
  public:
    explicit Blick(const fs::path& pfad)
        : m_griff(::CreateFileW(Lesbar(pfad).c_str(), FILE_READ_ATTRIBUTES,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr)),
          m_fehler(::GetLastError()) {}
    Blick(const Blick&) = delete;
    Blick& operator=(const Blick&) = delete;
    ~Blick() {
        if (IstDa()) {
            ::CloseHandle(m_griff);
        }
    }

    [[nodiscard]] bool IstDa() const { return m_griff != INVALID_HANDLE_VALUE; }
    [[nodiscard]] std::optional<Dateisystem::Art> Art() const {
        using Art = Dateisystem::Art;
        if (::GetFileType(m_griff) != FILE_TYPE_DISK) {
            return Art::Anderes;
        }
        BY_HANDLE_FILE_INFORMATION angaben;
        if (::GetFileInformationByHandle(m_griff, &angaben) == 0) {
            return std::nullopt;
        }
        return (angaben.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Art::Ordner
                                                                          : Art::Datei;
    }
    /// Behind all links; empty where the disk can't tell it.
    [[nodiscard]] std::wstring Ort() const {
        std::wstring ort(::GetFinalPathNameByHandleW(m_griff, nullptr, 0, 0), L'\0');
        ort.resize(
            ::GetFinalPathNameByHandleW(m_griff, ort.data(), static_cast<DWORD>(ort.size()), 0));
        return ort;
    }

    /// Whether it isn't there because nothing has this name.
    [[nodiscard]] bool IstNichts() const {
        return !IstDa() && (m_fehler == ERROR_FILE_NOT_FOUND || m_fehler == ERROR_PATH_NOT_FOUND);
    }

  private:
    HANDLE m_griff;
    DWORD m_fehler;
};

/// Whether another program has the file open in a way that lets nobody else at it.
bool IstGehalten(DWORD fehler) {
    return fehler == ERROR_SHARING_VIOLATION || fehler == ERROR_LOCK_VIOLATION ||
           fehler == ERROR_USER_MAPPED_FILE;
}

/// Virus scanners and indexes hold a file for a moment after it was written; who holds it longer
/// wins. `tat` answers with the system's error; whether it came to its end.
template <class Tat>
bool Geduldig(Tat tat) {
    constexpr int kProben = 20;
    constexpr DWORD kPause = 50;
    DWORD fehler = tat();
    for (int probe = 1; IstGehalten(fehler) && probe < kProben; ++probe) {
        ::Sleep(kPause);
        fehler = tat();
    }
    return fehler == ERROR_SUCCESS;
}

class Windows final : public Dateisystem {
  public:
    [[nodiscard]] std::optional<Art> Sieh(const fs::path& pfad) const override {
        const Blick blick(pfad);
        if (blick.IstDa()) {
            return blick.Art();
        }
        return blick.IstNichts() ? std::optional(Art::Nichts) : std::nullopt;
    }
    [[nodiscard]] std::optional<fs::path> LoeseAuf(const fs::path& pfad) const override {
        const fs::path voll = Lesbar(pfad);
        if (voll.empty()) {
            return std::nullopt;
        }
        // A new file has its folder's place.
        if (const Blick datei(voll); datei.IstDa()) {
            const std::wstring ort = datei.Ort();
            return ort.empty() ? voll : fs::path(ort);
        }
        const Blick ordner(voll.parent_path());
        const std::wstring ort = ordner.IstDa() ? ordner.Ort() : std::wstring();
        return ort.empty() ? voll : fs::path(ort) / voll.filename();
    }
    /// A folder tells only when a file is made in it. The system deletes it, whoever looks at it.
    [[nodiscard]] bool IstBeschreibbar(const fs::path& pfad) const override {
        if (Sieh(pfad) != Art::Ordner) {
            return ::_waccess(Lesbar(pfad).c_str(), 2) == 0;
        }
        const fs::path probe = pfad / (".tarvelin-" + std::to_string(Prozess()) + ".tmp");
        const HANDLE griff = ::CreateFileW(
            Lesbar(probe).c_str(), GENERIC_WRITE | DELETE,
            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, CREATE_ALWAYS,
            FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        return griff != INVALID_HANDLE_VALUE && ::CloseHandle(griff) != 0;
    }

    [[nodiscard]] std::vector<fs::path> Eintraege(const fs::path& ordner) const override {
        std::vector<fs::path> eintraege;
        WIN32_FIND_DATAW eintrag;
        const HANDLE suche = ::FindFirstFileW(Lesbar(ordner / "*").c_str(), &eintrag);
        if (suche == INVALID_HANDLE_VALUE) {
            return eintraege;
        }
        do {
            const std::wstring_view name = eintrag.cFileName;
            if (name != L"." && name != L"..") {
                eintraege.push_back(ordner / name);
            }
        } while (::FindNextFileW(suche, &eintrag) != 0);
        ::FindClose(suche);
        return eintraege;
    }
    /// What the file system keeps for itself, as in its index or compressed, tells no folder apart.
    [[nodiscard]] bool IstSchlichterOrdner(const fs::path& pfad) const override {
        constexpr DWORD kBesonders = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN |
                                     FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                                     FILE_ATTRIBUTE_REPARSE_POINT;
        const DWORD attribute = ::GetFileAttributesW(Lesbar(pfad).c_str());
        return attribute != INVALID_FILE_ATTRIBUTES &&
               (attribute & (FILE_ATTRIBUTE_DIRECTORY | kBesonders)) == FILE_ATTRIBUTE_DIRECTORY;
    }
    [[nodiscard]] bool LegeOrdnerAn(const fs::path& pfad) const override {
        if (Sieh(pfad) != Art::Ordner && pfad.has_relative_path() &&
            LegeOrdnerAn(pfad.parent_path())) {
            ::CreateDirectoryW(Lesbar(pfad).c_str(), nullptr);
        }
        return Sieh(pfad) == Art::Ordner;
    }

    [[nodiscard]] int Oeffne(const fs::path& datei) const override {
        int nummer = -1;
        static_cast<void>(Geduldig([&] {
            nummer = ::_wopen(Lesbar(datei).c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
            return nummer >= 0 ? DWORD{ERROR_SUCCESS} : DWORD{_doserrno};
        }));
        return nummer;
    }
    [[nodiscard]] int LegeAn(const fs::path& datei) const override {
        return ::_wopen(Lesbar(datei).c_str(),
                        _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                        _S_IREAD | _S_IWRITE);
    }
    [[nodiscard]] std::ptrdiff_t Lies(int nummer, std::span<char> bytes) const override {
        const auto anzahl = static_cast<unsigned>(std::min(bytes.size(), kHappen));
        return ::_read(nummer, bytes.data(), anzahl);
    }
    [[nodiscard]] std::ptrdiff_t Schreibe(int nummer, std::string_view bytes) const override {
        const auto anzahl = static_cast<unsigned>(std::min(bytes.size(), kHappen));
        return ::_write(nummer, bytes.data(), anzahl);
    }
    /// A new file takes the rights of its folder, as those of most programs do here.
    [[nodiscard]] bool UebernimmRechte(int /*nummer*/, const fs::path& /*von*/) const override {
        return true;
    }
    [[nodiscard]] bool BringAufPlatte(int nummer) const override { return ::_commit(nummer) == 0; }
    bool Schliesse(int nummer) const override { return ::_close(nummer) == 0; }

    [[nodiscard]] bool BenenneUm(const fs::path& von, const fs::path& nach) const override {
        return Geduldig([&] {
            const bool verschoben =
                ::MoveFileExW(Lesbar(von).c_str(), Lesbar(nach).c_str(),
                              MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
            const DWORD fehler = verschoben ? DWORD{ERROR_SUCCESS} : ::GetLastError();
            // Who may not be replaced at all answers the same.
            return fehler == ERROR_ACCESS_DENIED ? DWORD{ERROR_SHARING_VIOLATION} : fehler;
        });
    }
    /// The move has written through.
    bool BringOrdnerAufPlatte(const fs::path& /*ordner*/) const override { return true; }
    bool Loesche(const fs::path& datei) const override {
        return ::_wunlink(Lesbar(datei).c_str()) == 0;
    }

    [[nodiscard]] std::int64_t Prozess() const override { return ::GetCurrentProcessId(); }
    [[nodiscard]] bool Laeuft(std::int64_t prozess) const override {
        const HANDLE griff = ::OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(prozess));
        if (griff == nullptr) {
            return ::GetLastError() != ERROR_INVALID_PARAMETER;
        }
        const bool laeuft = ::WaitForSingleObject(griff, 0) == WAIT_TIMEOUT;
        ::CloseHandle(griff);
        return laeuft;
    }
};

}  // namespace

const Dateisystem& Platte() {
    static const Windows kWindows;
    return kWindows;
}

}  // namespace tarvelin
