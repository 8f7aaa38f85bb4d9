// When the plan is written, and what is kept first.
#include "persistence/Autosave.h"

#include <algorithm>

#include "persistence/AtomicWrite.h"

namespace tarvelin {

namespace {

/// "1" in an autosave whose plan lies in a file of its own.
constexpr const char* kSitzung = "Sitzung";
constexpr const char* kAusDatei = "AusDatei";

bool IstAusDatei(const Profil& profil) {
    return profil.Lies(kSitzung, kAusDatei, "0") == "1";
}

std::string AlsBytes(const Plan& plan) {
    Profil profil("");
    SchreibePlan(plan, profil);
    return profil.Bytes();
}

}  // namespace

Autosave::Autosave(const std::filesystem::path& programmordner, const Dateisystem& system)
    : m_datei(programmordner / "saves" / "autosave.tvf"),
      m_vorige{programmordner / "saves" / "autosave-vorige.tvf",
               programmordner / "saves" / "autosave-vorige-2.tvf"},
      m_system(system) {}

std::vector<std::filesystem::path> Autosave::Dateien() const {
    std::vector<std::filesystem::path> dateien{m_datei, m_vorige[0], m_vorige[1]};
    for (std::size_t i = 0; i <= kErsetzte; ++i) {
        dateien.push_back(Ersetzter(i));
    }
    return dateien;
}

bool Autosave::IstEigene(const std::filesystem::path& File) const {
    // Many names lead to a file.
    const auto ziel = m_system.LoeseAuf(File);
    return std::ranges::any_of(
        Dateien(), [&](const auto& eigene) { return ziel && ziel == m_system.LoeseAuf(eigene); });
}

void Autosave::LiegtInDatei(const Plan& plan) {
    m_ausDatei = AlsBytes(plan);
}

void Autosave::GiltAlsGeschrieben(const Plan& plan) {
    m_letzter = AlsBytes(plan);
}

void Autosave::SchreibeGeaenderten(const Plan& plan) {
    if (m_letzter != AlsBytes(plan)) {
        static_cast<void>(Schreibe(plan));
    }
}

bool Autosave::Schreibe(const Plan& plan) {
    return Schreibe(plan, false);
}

void Autosave::SchreibeZuletzt(const Plan& plan) {
    static_cast<void>(Schreibe(plan, true));
}

bool Autosave::Schreibe(const Plan& plan, bool auchOhneVorige) {
    GiltAlsGeschrieben(plan);
    static_cast<void>(m_system.LegeOrdnerAn(m_datei.parent_path()));
    const auto vorher = Profil::LadeOderLeer(m_datei, m_system);
    if (!vorher) {
        return false;
    }
    Profil nachher = *vorher;
    SchreibePlan(plan, nachher);
    const bool ausDatei = m_ausDatei == m_letzter;
    if (ausDatei != IstAusDatei(nachher)) {
        nachher.Schreibe(kSitzung, kAusDatei, ausDatei ? "1" : "0");
    }
    const std::string bytes = nachher.Bytes();
    if (bytes == vorher->Bytes()) {
        return true;
    }
    m_vorigeBewahrt = m_vorigeBewahrt || BewahreVorige(*vorher);
    return (m_vorigeBewahrt || auchOhneVorige) && ErsetzeDatei(m_datei, bytes, m_system);
}

void Autosave::BewahreErsetzten(const Plan& plan) const {
    const std::string bytes = AlsBytes(plan);
    const auto letzter = Profil::Lade(Ersetzter(1), m_system);
    if (plan.LV_Bauliste.Orders().IsEmpty() || (letzter && letzter->Bytes() == bytes)) {
        return;
    }
    static_cast<void>(m_system.LegeOrdnerAn(m_datei.parent_path()));
    if (ErsetzeDatei(Ersetzter(0), bytes, m_system)) {
        static_cast<void>(m_system.BenenneUm(Ersetzter(0), Ersetzter(RueckeErsetzte())));
    }
}

std::filesystem::path Autosave::Ersetzter(std::size_t nummer) const {
    return m_datei.parent_path() / ("ersetzt-" + std::to_string(nummer) + ".tvf");
}

// Up to the first gap, or over the oldest.
std::size_t Autosave::RueckeErsetzte() const {
    std::size_t frei = 1;
    while (frei < kErsetzte && m_system.Sieh(Ersetzter(frei)) != Dateisystem::Art::Nichts) {
        ++frei;
    }
    for (; frei > 1; --frei) {
        if (!m_system.BenenneUm(Ersetzter(frei - 1), Ersetzter(frei))) {
            break;
        }
    }
    return frei;
}

bool Autosave::BewahreVorige(const Profil& vorige) {
    return !HatZeilen(vorige) || IstAusDatei(vorige) ||
           std::ranges::any_of(m_vorige, [&](const auto& datei) {
               return ErsetzeDatei(datei, vorige.Bytes(), m_system);
           });
}

}  // namespace tarvelin
