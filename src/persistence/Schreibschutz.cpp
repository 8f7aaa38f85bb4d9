// What lies in a protected folder.
#include "persistence/Schreibschutz.h"

#include <algorithm>

namespace tarvelin {

Schreibschutz::Schreibschutz(const std::filesystem::path& ordner, const Dateisystem& system)
    : m_system(system), m_ordner(system.LoeseAuf(ordner / "").value_or(ordner)) {
    if (!m_ordner.has_filename()) {
        m_ordner = m_ordner.parent_path();
    }
}

bool Schreibschutz::Schuetzt(const std::filesystem::path& pfad) const {
    const auto ort = m_system.LoeseAuf(pfad).value_or(pfad);
    return std::mismatch(m_ordner.begin(), m_ordner.end(), ort.begin(), ort.end()).first ==
           m_ordner.end();
}

}  // namespace tarvelin
