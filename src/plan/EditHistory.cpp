// Plans behind each other.
#include "plan/EditHistory.h"

#include <utility>

namespace tarvelin {

void Listenverlauf::Beginne(Planstand stand) {
    *this = Listenverlauf();
    m_staende.front() = std::move(stand);
}

bool Listenverlauf::Merke(Planstand stand, std::string_view eingabe) {
    if (stand == m_staende[m_jetzt]) {
        return false;
    }
    m_staende.resize(m_jetzt + 1);
    if (!eingabe.empty() && eingabe == m_eingabe) {
        m_staende.pop_back();
        // Typed back to what it was.
        if (stand == m_staende.back()) {
            m_eingabe.clear();
            --m_jetzt;
            return true;
        }
    } else {
        ++m_jetzt;
    }
    m_staende.push_back(std::move(stand));
    m_eingabe = eingabe;
    return true;
}

void Listenverlauf::SchreibeTagUm(const Startparameter& vorher, const Startparameter& nachher) {
    for (Planstand& stand : m_staende) {
        Startparameter& parameter = stand.Parameter;
        if (parameter.UniStartZeitTag == vorher.UniStartZeitTag &&
            parameter.UniStartZeitMonat == vorher.UniStartZeitMonat) {
            parameter.UniStartZeitTag = nachher.UniStartZeitTag;
            parameter.UniStartZeitMonat = nachher.UniStartZeitMonat;
        }
    }
    for (std::size_t i = m_staende.size() - 1; i > 0; --i) {
        if (m_staende[i] == m_staende[i - 1]) {
            m_staende.erase(m_staende.begin() + static_cast<std::ptrdiff_t>(i));
            m_jetzt -= i <= m_jetzt ? 1 : 0;
            m_eingabe.clear();
        }
    }
}

const Planstand& Listenverlauf::Zurueck() {
    m_eingabe.clear();
    return m_staende[--m_jetzt];
}

const Planstand& Listenverlauf::Vor() {
    m_eingabe.clear();
    return m_staende[++m_jetzt];
}

}  // namespace tarvelin
