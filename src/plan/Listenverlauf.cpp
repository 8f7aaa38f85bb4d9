// Plans behind each other.
#include "plan/Listenverlauf.h"

#include <utility>

namespace tarvelin {

void Listenverlauf::Beginne(Planstand stand) {
    *this = Listenverlauf();
    Berichtige(std::move(stand));
}

void Listenverlauf::Merke(Planstand stand, std::string_view eingabe) {
    if (stand == m_staende[m_jetzt]) {
        return;
    }
    m_staende.resize(m_jetzt + 1);
    if (!eingabe.empty() && eingabe == m_eingabe) {
        m_staende.pop_back();
        // Typed back to what it was.
        if (stand == m_staende.back()) {
            m_eingabe.clear();
            --m_jetzt;
            return;
        }
    } else {
        ++m_jetzt;
    }
    m_staende.push_back(std::move(stand));
    m_eingabe = eingabe;
}

void Listenverlauf::Berichtige(Planstand stand) {
    m_staende[m_jetzt] = std::move(stand);
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
