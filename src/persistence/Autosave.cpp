// When the plan is written, and what is kept first.
#include "persistence/Autosave.h"

#include <algorithm>

#include "persistence/Dateiersatz.h"

namespace tarvelin {

namespace {

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
    const auto vorher = Profil::LadeOderLeer(m_datei, m_system);
    if (!vorher) {
        return false;
    }
    Profil nachher = *vorher;
    SchreibePlan(plan, nachher);
    const std::string bytes = nachher.Bytes();
    if (bytes == vorher->Bytes()) {
        return true;
    }
    m_vorigeBewahrt = m_vorigeBewahrt || BewahreVorige(*vorher);
    return (m_vorigeBewahrt || auchOhneVorige) && ErsetzeDatei(m_datei, bytes, m_system);
}

bool Autosave::BewahreVorige(const Profil& vorige) {
    return !HatZeilen(vorige) || std::ranges::any_of(m_vorige, [&](const auto& datei) {
        return ErsetzeDatei(datei, vorige.Bytes(), m_system);
    });
}

}  // namespace tarvelin
