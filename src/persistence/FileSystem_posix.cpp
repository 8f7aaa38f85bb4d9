// The calls on POSIX.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <system_error>
#include <utility>

#include "persistence/FileSystem.h"

namespace tarvelin {

namespace {

namespace fs = std::filesystem;

/// A call that a signal interrupted is made again.
template <class Aufruf>
auto Wiederhole(Aufruf aufruf) {
    auto antwort = aufruf();
    while (antwort < 0 && errno == EINTR) {
        antwort = aufruf();
    }
    return antwort;
}

class Posix final : public Dateisystem {
  public:
    [[nodiscard]] std::optional<Art> Sieh(const fs::path& pfad) const override {
        struct stat status {};
        if (::stat(pfad.c_str(), &status) != 0) {
            return errno == ENOENT || errno == ENOTDIR ? std::optional(Art::Nichts) : std::nullopt;
        }
        return S_ISREG(status.st_mode)   ? Art::Datei
               : S_ISDIR(status.st_mode) ? Art::Ordner
                                         : Art::Anderes;
    }
    [[nodiscard]] std::optional<fs::path> LoeseAuf(const fs::path& pfad) const override {
        std::error_code fehler;
        auto ziel = fs::weakly_canonical(fs::absolute(pfad, fehler), fehler);
        return fehler ? std::nullopt : std::optional(std::move(ziel));
    }
    [[nodiscard]] bool IstBeschreibbar(const fs::path& pfad) const override {
        const bool ordner = Sieh(pfad) == Art::Ordner;
        return ::access(pfad.c_str(), ordner ? W_OK | X_OK : W_OK) == 0;
    }
    [[nodiscard]] std::vector<fs::path> Eintraege(const fs::path& ordner) const override {
        std::vector<fs::path> eintraege;
        std::error_code fehler;
        for (fs::directory_iterator eintrag(ordner, fehler), ende; !fehler && eintrag != ende;
             eintrag.increment(fehler)) {
            eintraege.push_back(eintrag->path());
        }
        return eintraege;
    }
    [[nodiscard]] bool IstSchlichterOrdner(const fs::path& pfad) const override {
        std::error_code fehler;
        return fs::symlink_status(pfad, fehler).type() == fs::file_type::directory &&
               !pfad.filename().native().starts_with('.');
    }
    [[nodiscard]] bool LegeOrdnerAn(const fs::path& pfad) const override {
        std::error_code fehler;
        fs::create_directories(pfad, fehler);
        return Sieh(pfad) == Art::Ordner;
    }

    [[nodiscard]] int Oeffne(const fs::path& datei) const override {
        return Wiederhole([&] { return ::open(datei.c_str(), O_RDONLY | O_CLOEXEC); });
    }
    [[nodiscard]] int LegeAn(const fs::path& datei) const override {
        constexpr mode_t kNeueRechte = 0666;
        return Wiederhole([&] {
            return ::open(datei.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNeueRechte);
        });
    }
    [[nodiscard]] std::ptrdiff_t Lies(int nummer, std::span<char> bytes) const override {
        return Wiederhole([&] { return ::read(nummer, bytes.data(), bytes.size()); });
    }
    [[nodiscard]] std::ptrdiff_t Schreibe(int nummer, std::string_view bytes) const override {
        return Wiederhole([&] { return ::write(nummer, bytes.data(), bytes.size()); });
    }
    [[nodiscard]] bool UebernimmRechte(int nummer, const fs::path& von) const override {
        constexpr mode_t kRechtebits = 07777;
        struct stat status {};
        return ::stat(von.c_str(), &status) == 0 &&
               ::fchmod(nummer, status.st_mode & kRechtebits) == 0;
    }
    [[nodiscard]] bool BringAufPlatte(int nummer) const override {
        return Wiederhole([&] { return ::fsync(nummer); }) == 0;
    }
    bool Schliesse(int nummer) const override { return ::close(nummer) == 0; }

    [[nodiscard]] bool BenenneUm(const fs::path& von, const fs::path& nach) const override {
        return ::rename(von.c_str(), nach.c_str()) == 0;
    }
    bool BringOrdnerAufPlatte(const fs::path& ordner) const override {
        const int nummer = ::open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        const bool gelungen = nummer >= 0 && BringAufPlatte(nummer);
        return nummer >= 0 && Schliesse(nummer) && gelungen;
    }
    bool Loesche(const fs::path& datei) const override { return ::unlink(datei.c_str()) == 0; }

    [[nodiscard]] std::int64_t Prozess() const override { return ::getpid(); }
    [[nodiscard]] bool Laeuft(std::int64_t prozess) const override {
        return ::kill(static_cast<pid_t>(prozess), 0) == 0 || errno != ESRCH;
    }
};

}  // namespace

const Dateisystem& Platte() {
    static const Posix kPosix;
    return kPosix;
}

}  // namespace tarvelin
