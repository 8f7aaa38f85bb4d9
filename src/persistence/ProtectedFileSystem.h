// A platform on which certain files and folders can't be written.
#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "persistence/FileSystem.h"

namespace tarvelin {

/// Does what another platform does, but changes none of the files and folders that it was given,
/// and nothing below them.
class Schreibschutz final : public Dateisystem {
  public:
    /// `system` must outlive it.
    explicit Schreibschutz(const std::vector<std::filesystem::path>& geschuetzte,
                           const Dateisystem& system = Platte());

    [[nodiscard]] bool IstBeschreibbar(const std::filesystem::path& pfad) const override {
        return !Schuetzt(pfad) && m_system.IstBeschreibbar(pfad);
    }
    [[nodiscard]] int LegeAn(const std::filesystem::path& datei) const override {
        return Schuetzt(datei) ? -1 : m_system.LegeAn(datei);
    }
    [[nodiscard]] bool LegeOrdnerAn(const std::filesystem::path& pfad) const override {
        return !Schuetzt(pfad) && m_system.LegeOrdnerAn(pfad);
    }
    [[nodiscard]] bool BenenneUm(const std::filesystem::path& von,
                                 const std::filesystem::path& nach) const override {
        return !Schuetzt(von) && !Schuetzt(nach) && m_system.BenenneUm(von, nach);
    }
    bool Loesche(const std::filesystem::path& datei) const override {
        return !Schuetzt(datei) && m_system.Loesche(datei);
    }

    [[nodiscard]] std::optional<Art> Sieh(const std::filesystem::path& pfad) const override {
        return m_system.Sieh(pfad);
    }
    [[nodiscard]] std::optional<std::filesystem::path> LoeseAuf(
        const std::filesystem::path& pfad) const override {
        return m_system.LoeseAuf(pfad);
    }
    [[nodiscard]] std::vector<std::filesystem::path> Eintraege(
        const std::filesystem::path& ordner) const override {
        return m_system.Eintraege(ordner);
    }
    [[nodiscard]] bool IstSchlichterOrdner(const std::filesystem::path& pfad) const override {
        return m_system.IstSchlichterOrdner(pfad);
    }
    [[nodiscard]] int Oeffne(const std::filesystem::path& datei) const override {
        return m_system.Oeffne(datei);
    }
    [[nodiscard]] std::ptrdiff_t Lies(int nummer, std::span<char> bytes) const override {
        return m_system.Lies(nummer, bytes);
    }
    [[nodiscard]] std::ptrdiff_t Schreibe(int nummer, std::string_view bytes) const override {
        return m_system.Schreibe(nummer, bytes);
    }
    [[nodiscard]] bool UebernimmRechte(int nummer,
                                       const std::filesystem::path& von) const override {
        return m_system.UebernimmRechte(nummer, von);
    }
    [[nodiscard]] bool BringAufPlatte(int nummer) const override {
        return m_system.BringAufPlatte(nummer);
    }
    bool Schliesse(int nummer) const override { return m_system.Schliesse(nummer); }
    bool BringOrdnerAufPlatte(const std::filesystem::path& ordner) const override {
        return m_system.BringOrdnerAufPlatte(ordner);
    }
    [[nodiscard]] std::int64_t Prozess() const override { return m_system.Prozess(); }
    [[nodiscard]] bool Laeuft(std::int64_t prozess) const override {
        return m_system.Laeuft(prozess);
    }

  private:
    [[nodiscard]] bool Schuetzt(const std::filesystem::path& pfad) const;

    const Dateisystem& m_system;
    /// Absolute, without links.
    std::vector<std::filesystem::path> m_geschuetzte;
};

}  // namespace tarvelin
