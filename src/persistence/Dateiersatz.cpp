// Replacing of files, on the system calls of POSIX.
#include "persistence/Dateiersatz.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <csignal>
#include <string>
#include <system_error>

namespace tarvelin {

namespace {

/// An open file, closed at the end.
class Deskriptor {
  public:
    Deskriptor(const std::filesystem::path& datei, int art, mode_t rechte = 0)
        : m_nummer(::open(datei.c_str(), art | O_CLOEXEC, rechte)) {}
    Deskriptor(const Deskriptor&) = delete;
    Deskriptor& operator=(const Deskriptor&) = delete;
    ~Deskriptor() { Schliesse(); }

    [[nodiscard]] bool IstOffen() const { return m_nummer >= 0; }
    bool Schreibe(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t n = ::write(m_nummer, bytes.data(), bytes.size());
            if (n < 0 && errno != EINTR) {
                return false;
            }
            bytes.remove_prefix(n < 0 ? 0 : static_cast<std::size_t>(n));
        }
        return true;
    }
    bool SetzeRechte(mode_t rechte) { return ::fchmod(m_nummer, rechte) == 0; }
    bool AufPlatte() { return ::fsync(m_nummer) == 0; }
    bool Schliesse() {
        const int nummer = m_nummer;
        m_nummer = -1;
        return nummer < 0 || ::close(nummer) == 0;
    }

  private:
    int m_nummer;
};

constexpr std::string_view kVorsilbe = ".tarvelin-";
constexpr std::string_view kEndung = ".tmp";

/// Whether a file is what a process of ours left that was killed in the middle of a save.
bool IstVerwaist(std::string_view name) {
    if (!name.starts_with(kVorsilbe) || !name.ends_with(kEndung)) {
        return false;
    }
    name.remove_prefix(kVorsilbe.size());
    name.remove_suffix(kEndung.size());
    pid_t prozess = 0;
    const auto gelesen = std::from_chars(name.data(), name.data() + name.size(), prozess);
    return gelesen.ec == std::errc() && gelesen.ptr == name.data() + name.size() && prozess > 0 &&
           (prozess == ::getpid() || (::kill(prozess, 0) != 0 && errno == ESRCH));
}

void RaeumeVerwaistesAus(const std::filesystem::path& ordner) {
    std::error_code fehler;
    for (std::filesystem::directory_iterator eintrag(ordner, fehler), ende;
         !fehler && eintrag != ende; eintrag.increment(fehler)) {
        if (IstVerwaist(eintrag->path().filename().native())) {
            ::unlink(eintrag->path().c_str());
        }
    }
}

/// A new file beside another one, deleted at the end unless it has taken that one's place.
class Nachbardatei {
  public:
    explicit Nachbardatei(const std::filesystem::path& datei)
        : m_pfad(FreierName(datei)),
          m_deskriptor(m_pfad, O_WRONLY | O_CREAT | O_EXCL, kNeueRechte),
          m_liegtDa(m_deskriptor.IstOffen()) {}
    Nachbardatei(const Nachbardatei&) = delete;
    Nachbardatei& operator=(const Nachbardatei&) = delete;
    ~Nachbardatei() {
        if (m_liegtDa) {
            ::unlink(m_pfad.c_str());
        }
    }

    /// `alte`: the file that is replaced, if there is one; the new one keeps its rights.
    bool Fuelle(std::string_view bytes, const struct stat* alte) {
        return m_liegtDa &&
               (alte == nullptr || m_deskriptor.SetzeRechte(alte->st_mode & kRechtebits)) &&
               m_deskriptor.Schreibe(bytes) && m_deskriptor.AufPlatte() && m_deskriptor.Schliesse();
    }
    bool NimmPlatzVon(const std::filesystem::path& datei) {
        const bool gelungen = ::rename(m_pfad.c_str(), datei.c_str()) == 0;
        m_liegtDa = m_liegtDa && !gelungen;
        return gelungen;
    }

  private:
    static constexpr mode_t kNeueRechte = 0666;
    static constexpr mode_t kRechtebits = 07777;

    static std::filesystem::path FreierName(const std::filesystem::path& datei) {
        RaeumeVerwaistesAus(datei.parent_path());
        return datei.parent_path() /
               (std::string(kVorsilbe) + std::to_string(::getpid()) + std::string(kEndung));
    }

    std::filesystem::path m_pfad;
    Deskriptor m_deskriptor;
    bool m_liegtDa;
};

}  // namespace

bool ErsetzeDatei(const std::filesystem::path& datei, std::string_view bytes) {
    std::error_code fehler;
    // A link keeps pointing to the file whose bytes change.
    const auto ziel =
        std::filesystem::weakly_canonical(std::filesystem::absolute(datei, fehler), fehler);
    if (fehler) {
        return false;
    }
    struct stat alte {};
    const bool vorhanden = ::stat(ziel.c_str(), &alte) == 0;
    if (vorhanden && (!S_ISREG(alte.st_mode) || ::access(ziel.c_str(), W_OK) != 0)) {
        return false;
    }
    Nachbardatei neue(ziel);
    if (!neue.Fuelle(bytes, vorhanden ? &alte : nullptr) || !neue.NimmPlatzVon(ziel)) {
        return false;
    }
    // The rename itself reaches the disk with its folder.
    Deskriptor ordner(ziel.parent_path(), O_RDONLY | O_DIRECTORY);
    if (ordner.IstOffen()) {
        ordner.AufPlatte();
    }
    return true;
}

bool IstBeschreibbar(const std::filesystem::path& ordner) {
    return ::access(ordner.c_str(), W_OK | X_OK) == 0;
}

}  // namespace tarvelin
