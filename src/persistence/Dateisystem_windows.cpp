// The calls on Windows.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <system_error>

#include "persistence/Dateisystem.h"

namespace tarvelin {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kHappen = std::size_t{1} << 20U;

/// Longer paths are read by the system only if they begin with a mark. It ends the system's own
/// reading of ".", ".." and "/" in them.
std::wstring Lesbar(const fs::path& pfad) {
    constexpr std::size_t kLaengstens = 240;
    std::wstring voll(::GetFullPathNameW(pfad.c_str(), 0, nullptr, nullptr), L'\0');
    voll.resize(
        ::GetFullPathNameW(pfad.c_str(), static_cast<DWORD>(voll.size()), voll.data(), nullptr));
    if (voll.size() < kLaengstens || voll.starts_with(LR"(\\?\)")) {
        return pfad.native();
    }
    const bool freigabe = voll.starts_with(LR"(\\)");
    return freigabe ? LR"(\\?\UNC\)" + voll.substr(2) : LR"(\\?\)" + voll;
}

bool IstLang(const fs::path& pfad) {
    return Lesbar(pfad) != pfad.native();
}

std::optional<Dateisystem::Art> SiehLangen(const fs::path& pfad) {
    const DWORD art = ::GetFileAttributesW(Lesbar(pfad).c_str());
    if (art == INVALID_FILE_ATTRIBUTES) {
        const DWORD fehler = ::GetLastError();
        return fehler == ERROR_FILE_NOT_FOUND || fehler == ERROR_PATH_NOT_FOUND
                   ? std::optional(Dateisystem::Art::Nichts)
                   : std::nullopt;
    }
    return (art & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Dateisystem::Art::Anderes
                                                 : Dateisystem::Art::Datei;
}

bool Verschiebe(const fs::path& von, const fs::path& nach) {
    return ::MoveFileExW(Lesbar(von).c_str(), Lesbar(nach).c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

/// Whether another program has the file open.
bool IstGehalten(DWORD fehler) {
    return fehler == ERROR_SHARING_VIOLATION || fehler == ERROR_LOCK_VIOLATION ||
           fehler == ERROR_ACCESS_DENIED || fehler == ERROR_USER_MAPPED_FILE;
}

class Windows final : public Dateisystem {
  public:
    [[nodiscard]] std::optional<Art> Sieh(const fs::path& pfad) const override {
        if (IstLang(pfad)) {
            return SiehLangen(pfad);
        }
        std::error_code fehler;
        switch (fs::status(pfad, fehler).type()) {
            case fs::file_type::not_found:
                return Art::Nichts;
            case fs::file_type::none:
                return std::nullopt;
            case fs::file_type::regular:
                return Art::Datei;
            default:
                return Art::Anderes;
        }
    }
    [[nodiscard]] std::optional<fs::path> LoeseAuf(const fs::path& pfad) const override {
        return IstLang(pfad) ? std::optional(fs::path(Lesbar(pfad))) : Dateisystem::LoeseAuf(pfad);
    }
    /// A folder tells only when a file is made in it.
    [[nodiscard]] bool IstBeschreibbar(const fs::path& pfad) const override {
        if (Sieh(pfad) != Art::Anderes) {
            return ::_waccess(Lesbar(pfad).c_str(), 2) == 0;
        }
        const fs::path probe = pfad / (".tarvelin-" + std::to_string(Prozess()) + ".tmp");
        const int nummer = LegeAn(probe);
        return nummer >= 0 && Schliesse(nummer) && Loesche(probe);
    }

    [[nodiscard]] int Oeffne(const fs::path& datei) const override {
        return ::_wopen(Lesbar(datei).c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
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
    /// A new file takes the rights of its folder; what can be written has no others here.
    [[nodiscard]] bool UebernimmRechte(int /*nummer*/, const fs::path& /*von*/) const override {
        return true;
    }
    [[nodiscard]] bool BringAufPlatte(int nummer) const override { return ::_commit(nummer) == 0; }
    bool Schliesse(int nummer) const override { return ::_close(nummer) == 0; }

    /// Virus scanners and indexes hold a file for a moment after it was written; who holds it
    /// longer wins.
    [[nodiscard]] bool BenenneUm(const fs::path& von, const fs::path& nach) const override {
        constexpr int kProben = 20;
        constexpr DWORD kPause = 50;
        for (int probe = 1; !Verschiebe(von, nach); ++probe) {
            if (probe == kProben || !IstGehalten(::GetLastError())) {
                return false;
            }
            ::Sleep(kPause);
        }
        return true;
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
