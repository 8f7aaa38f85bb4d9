// What is protected.
#include "persistence/ProtectedFileSystem.h"

#include <algorithm>

namespace tarvelin {

Schreibschutz::Schreibschutz(const std::vector<std::filesystem::path>& geschuetzte,
                             const Dateisystem& system)
    : m_system(system) {
    for (const auto& pfad : geschuetzte) {
        auto ort = system.LoeseAuf(pfad).value_or(pfad);
        m_geschuetzte.push_back(ort.has_filename() ? ort : ort.parent_path());
    }
}

bool Schreibschutz::Schuetzt(const std::filesystem::path& pfad) const {
    const auto ort = m_system.LoeseAuf(pfad).value_or(pfad);
    return std::ranges::any_of(m_geschuetzte, [&](const auto& geschuetzt) {
        return std::mismatch(geschuetzt.begin(), geschuetzt.end(), ort.begin(), ort.end()).first ==
               geschuetzt.end();
    });
}

}  // namespace tarvelin
