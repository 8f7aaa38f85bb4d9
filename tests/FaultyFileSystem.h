// A platform on which a call fails, for the tests of the file layer.
#pragma once

#include <string_view>

#include "persistence/FileSystem.h"

namespace tarvelin {

/// What fails behind the n-th call: nothing more, calls of its kind (a full disk), or all of them
/// (a disk that was pulled out).
enum class Ausfallart { Einmal, DieserAufrufFuerImmer, AllesFuerImmer };

/// The platform with its n-th call failing, from 1. A write that fails has written half.
class Stoersystem : public FileSystem {
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

    [[nodiscard]] std::optional<Kind> KindOf(const std::filesystem::path& pfad) const override {
        return Stoert("Sieh") ? std::nullopt : NativeFileSystem().KindOf(pfad);
    }
    [[nodiscard]] std::optional<std::filesystem::path> Resolve(
        const std::filesystem::path& pfad) const override {
        return Stoert("LoeseAuf") ? std::nullopt : NativeFileSystem().Resolve(pfad);
    }
    [[nodiscard]] bool IsWritable(const std::filesystem::path& pfad) const override {
        return !Stoert("IstBeschreibbar") && NativeFileSystem().IsWritable(pfad);
    }
    [[nodiscard]] std::vector<std::filesystem::path> Entries(
        const std::filesystem::path& ordner) const override {
        return Stoert("Eintraege") ? std::vector<std::filesystem::path>()
                                   : NativeFileSystem().Entries(ordner);
    }
    [[nodiscard]] bool IsPlainFolder(const std::filesystem::path& pfad) const override {
        return !Stoert("IstSchlichterOrdner") && NativeFileSystem().IsPlainFolder(pfad);
    }
    [[nodiscard]] bool CreateFolders(const std::filesystem::path& pfad) const override {
        return !Stoert("LegeOrdnerAn") && NativeFileSystem().CreateFolders(pfad);
    }
    [[nodiscard]] int Open(const std::filesystem::path& datei) const override {
        return Stoert("Oeffne") ? -1 : NativeFileSystem().Open(datei);
    }
    [[nodiscard]] int Create(const std::filesystem::path& datei) const override {
        return Stoert("LegeAn") ? -1 : NativeFileSystem().Create(datei);
    }
    [[nodiscard]] std::ptrdiff_t Read(int nummer, std::span<char> bytes) const override {
        return Stoert("Lies") ? -1 : NativeFileSystem().Read(nummer, bytes);
    }
    [[nodiscard]] std::ptrdiff_t Write(int nummer, std::string_view bytes) const override {
        // In two pieces, so that something can fail between them.
        const auto haelfte = bytes.substr(0, (bytes.size() + 1) / 2);
        if (Stoert("Schreibe")) {
            static_cast<void>(NativeFileSystem().Write(nummer, haelfte));
            return -1;
        }
        return NativeFileSystem().Write(nummer, haelfte);
    }
    [[nodiscard]] bool CopyPermissions(int nummer,
                                       const std::filesystem::path& von) const override {
        return !Stoert("UebernimmRechte") && NativeFileSystem().CopyPermissions(nummer, von);
    }
    [[nodiscard]] bool Sync(int nummer) const override {
        return !Stoert("BringAufPlatte") && NativeFileSystem().Sync(nummer);
    }
    bool Close(int nummer) const override {
        const bool gestoert = Stoert("Schliesse");
        return NativeFileSystem().Close(nummer) && !gestoert;
    }
    [[nodiscard]] bool Rename(const std::filesystem::path& von,
                              const std::filesystem::path& nach) const override {
        return !Stoert("BenenneUm") && NativeFileSystem().Rename(von, nach);
    }
    bool SyncFolder(const std::filesystem::path& ordner) const override {
        return !Stoert("BringOrdnerAufPlatte") && NativeFileSystem().SyncFolder(ordner);
    }
    bool Remove(const std::filesystem::path& datei) const override {
        return !Stoert("Loesche") && NativeFileSystem().Remove(datei);
    }
    [[nodiscard]] std::int64_t ProcessId() const override { return NativeFileSystem().ProcessId(); }
    [[nodiscard]] bool IsRunning(std::int64_t prozess) const override {
        return NativeFileSystem().IsRunning(prozess);
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
