// The calls on Windows.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <system_error>

#include "persistence/Dateisystem.h"

namespace tarvelin {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kHappen = std::size_t{1} << 20U;

class Windows final : public Dateisystem {
  public:
    [[nodiscard]] std::optional<Art> Sieh(const fs::path& pfad) const override {
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
    /// A folder tells only when a file is made in it.
    [[nodiscard]] bool IstBeschreibbar(const fs::path& pfad) const override {
        if (Sieh(pfad) != Art::Anderes) {
            return ::_waccess(pfad.c_str(), 2) == 0;
        }
        const fs::path probe = pfad / (".tarvelin-" + std::to_string(Prozess()) + ".tmp");
        const int nummer = LegeAn(probe);
        return nummer >= 0 && Schliesse(nummer) && Loesche(probe);
    }

    [[nodiscard]] int Oeffne(const fs::path& datei) const override {
        return ::_wopen(datei.c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
    }
    [[nodiscard]] int LegeAn(const fs::path& datei) const override {
        return ::_wopen(datei.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
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

    [[nodiscard]] bool BenenneUm(const fs::path& von, const fs::path& nach) const override {
        return ::MoveFileExW(von.c_str(), nach.c_str(),
                             MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    }
    /// The move has written through.
    bool BringOrdnerAufPlatte(const fs::path& /*ordner*/) const override { return true; }
    bool Loesche(const fs::path& datei) const override { return ::_wunlink(datei.c_str()) == 0; }

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
