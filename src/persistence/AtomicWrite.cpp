// Replacing of files.
#include "persistence/AtomicWrite.h"

#include <charconv>
#include <string>
#include <system_error>
#include <utility>

namespace tarvelin {

namespace {

constexpr std::string_view kVorsilbe = ".tarvelin-";
constexpr std::string_view kEndung = ".tmp";

/// Whether a file is what a process of ours left that was killed in the middle of a save.
bool IstVerwaist(std::string_view name, const Dateisystem& system) {
    if (!name.starts_with(kVorsilbe) || !name.ends_with(kEndung)) {
        return false;
    }
    name.remove_prefix(kVorsilbe.size());
    name.remove_suffix(kEndung.size());
    std::int32_t prozess = 0;
    const auto gelesen = std::from_chars(name.data(), name.data() + name.size(), prozess);
    return gelesen.ec == std::errc() && gelesen.ptr == name.data() + name.size() && prozess > 0 &&
           (prozess == system.Prozess() || !system.Laeuft(prozess));
}

void RaeumeVerwaistesAus(const std::filesystem::path& ordner, const Dateisystem& system) {
    for (const auto& eintrag : system.Eintraege(ordner)) {
        const auto name = eintrag.filename().u8string();
        if (IstVerwaist(std::string(name.begin(), name.end()), system)) {
            static_cast<void>(system.Loesche(eintrag));
        }
    }
}

/// A new file beside another one, deleted at the end unless it has taken that one's place.
class Nachbardatei {
  public:
    Nachbardatei(const std::filesystem::path& ordner, const Dateisystem& system)
        : m_system(system),
          m_pfad(ordner / (std::string(kVorsilbe) + std::to_string(system.Prozess()) +
                           std::string(kEndung))),
          m_nummer(system.LegeAn(m_pfad)),
          m_liegtDa(m_nummer >= 0) {}
    Nachbardatei(const Nachbardatei&) = delete;
    Nachbardatei& operator=(const Nachbardatei&) = delete;
    ~Nachbardatei() {
        Schliesse();
        if (m_liegtDa) {
            static_cast<void>(m_system.Loesche(m_pfad));
        }
    }

    [[nodiscard]] bool LiegtDa() const { return m_liegtDa; }
    bool UebernimmRechte(const std::filesystem::path& von) {
        return m_system.UebernimmRechte(m_nummer, von);
    }
    bool Fuelle(std::string_view bytes) {
        while (!bytes.empty()) {
            const std::ptrdiff_t n = m_system.Schreibe(m_nummer, bytes);
            if (n <= 0) {
                return false;
            }
            bytes.remove_prefix(static_cast<std::size_t>(n));
        }
        return m_system.BringAufPlatte(m_nummer) && Schliesse();
    }
    bool NimmPlatzVon(const std::filesystem::path& datei) {
        const bool gelungen = m_system.BenenneUm(m_pfad, datei);
        m_liegtDa = !gelungen;
        return gelungen;
    }

  private:
    bool Schliesse() {
        const int nummer = std::exchange(m_nummer, -1);
        return nummer < 0 || m_system.Schliesse(nummer);
    }

    const Dateisystem& m_system;
    std::filesystem::path m_pfad;
    int m_nummer;
    bool m_liegtDa;
};

}  // namespace

bool ErsetzeDatei(const std::filesystem::path& datei, std::string_view bytes,
                  const Dateisystem& system) {
    // A link keeps pointing to the file whose bytes change.
    const auto ziel = system.LoeseAuf(datei);
    if (!ziel) {
        return false;
    }
    const auto art = system.Sieh(*ziel);
    const bool vorhanden = art == Dateisystem::Art::Datei;
    if (vorhanden ? !system.IstBeschreibbar(*ziel) : art != Dateisystem::Art::Nichts) {
        return false;
    }
    const auto ordner = ziel->parent_path();
    RaeumeVerwaistesAus(ordner, system);
    Nachbardatei neue(ordner, system);
    if (!neue.LiegtDa() || (vorhanden && !neue.UebernimmRechte(*ziel)) || !neue.Fuelle(bytes) ||
        !neue.NimmPlatzVon(*ziel)) {
        return false;
    }
    // The rename itself reaches the disk with its folder.
    static_cast<void>(system.BringOrdnerAufPlatte(ordner));
    return true;
}

}  // namespace tarvelin
