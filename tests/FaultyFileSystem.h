// A platform on which a call fails, for the tests of the file layer.
#pragma once

#include <string_view>

#include "persistence/FileSystem.h"

namespace tarvelin {

/// What fails behind the n-th call: nothing more, calls of its kind (a full disk), or all of them
/// (a disk that was pulled out).
enum class Ausfallart { Einmal, DieserAufrufFuerImmer, AllesFuerImmer };

/// The platform with its n-th call failing, from 1. A write that fails has written half.
class Stoersystem : public Dateisystem {
  public:
    Stoersystem(int n, Ausfallart art) : m_n(n), m_art(art) {}

    /// Counts from 1 again.
    void Beginne(int n) {
        m_n = n;
        m_zaehler = 0;
    }
    [[nodiscard]] bool HatGestoert() const { return m_zaehler >= m_n; }
    /// The name of the call that failed first.
    [[nodiscard]] std::string_view Gestoert() const { return m_gestoert; }

    [[nodiscard]] std::optional<Art> Sieh(const std::filesystem::path& pfad) const override {
        return Stoert("Sieh") ? std::nullopt : Platte().Sieh(pfad);
    }
    [[nodiscard]] std::optional<std::filesystem::path> LoeseAuf(
        const std::filesystem::path& pfad) const override {
        return Stoert("LoeseAuf") ? std::nullopt : Platte().LoeseAuf(pfad);
    }
    [[nodiscard]] bool IstBeschreibbar(const std::filesystem::path& pfad) const override {
        return !Stoert("IstBeschreibbar") && Platte().IstBeschreibbar(pfad);
    }
    [[nodiscard]] std::vector<std::filesystem::path> Eintraege(
        const std::filesystem::path& ordner) const override {
        return Stoert("Eintraege") ? std::vector<std::filesystem::path>()
                                   : Platte().Eintraege(ordner);
    }
    [[nodiscard]] bool IstSchlichterOrdner(const std::filesystem::path& pfad) const override {
        return !Stoert("IstSchlichterOrdner") && Platte().IstSchlichterOrdner(pfad);
    }
    [[nodiscard]] bool LegeOrdnerAn(const std::filesystem::path& pfad) const override {
        return !Stoert("LegeOrdnerAn") && Platte().LegeOrdnerAn(pfad);
    }
    [[nodiscard]] int Oeffne(const std::filesystem::path& datei) const override {
        return Stoert("Oeffne") ? -1 : Platte().Oeffne(datei);
    }
    [[nodiscard]] int LegeAn(const std::filesystem::path& datei) const override {
        return Stoert("LegeAn") ? -1 : Platte().LegeAn(datei);
    }
    [[nodiscard]] std::ptrdiff_t Lies(int nummer, std::span<char> bytes) const override {
        return Stoert("Lies") ? -1 : Platte().Lies(nummer, bytes);
    }
    [[nodiscard]] std::ptrdiff_t Schreibe(int nummer, std::string_view bytes) const override {
        // In two pieces, so that something can fail between them.
        const auto haelfte = bytes.substr(0, (bytes.size() + 1) / 2);
        if (Stoert("Schreibe")) {
            static_cast<void>(Platte().Schreibe(nummer, haelfte));
            return -1;
        }
        return Platte().Schreibe(nummer, haelfte);
    }
    [[nodiscard]] bool UebernimmRechte(int nummer,
                                       const std::filesystem::path& von) const override {
        return !Stoert("UebernimmRechte") && Platte().UebernimmRechte(nummer, von);
    }
    [[nodiscard]] bool BringAufPlatte(int nummer) const override {
        return !Stoert("BringAufPlatte") && Platte().BringAufPlatte(nummer);
    }
    bool Schliesse(int nummer) const override {
        const bool gestoert = Stoert("Schliesse");
        return Platte().Schliesse(nummer) && !gestoert;
    }
    [[nodiscard]] bool BenenneUm(const std::filesystem::path& von,
                                 const std::filesystem::path& nach) const override {
        return !Stoert("BenenneUm") && Platte().BenenneUm(von, nach);
    }
    bool BringOrdnerAufPlatte(const std::filesystem::path& ordner) const override {
        return !Stoert("BringOrdnerAufPlatte") && Platte().BringOrdnerAufPlatte(ordner);
    }
    bool Loesche(const std::filesystem::path& datei) const override {
        return !Stoert("Loesche") && Platte().Loesche(datei);
    }
    [[nodiscard]] std::int64_t Prozess() const override { return Platte().Prozess(); }
    [[nodiscard]] bool Laeuft(std::int64_t prozess) const override {
        return Platte().Laeuft(prozess);
    }

  private:
    /// Called in front of the call; whether it fails.
    [[nodiscard]] bool Stoert(std::string_view aufruf) const {
        if (++m_zaehler == m_n) {
            m_gestoert = aufruf;
            VorAusfall();
            return true;
        }
        return m_zaehler > m_n &&
               (m_art == Ausfallart::AllesFuerImmer ||
                (m_art == Ausfallart::DieserAufrufFuerImmer && m_gestoert == aufruf));
    }
    virtual void VorAusfall() const {}

    int m_n;
    Ausfallart m_art;
    mutable int m_zaehler = 0;
    mutable std::string_view m_gestoert;
};

}  // namespace tarvelin
