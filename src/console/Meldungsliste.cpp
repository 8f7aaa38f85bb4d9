// Messages of the console.
#include "console/Meldungsliste.h"

namespace tarvelin {

void Meldungsliste::Zeige(const Meldung& meldung) {
    if (!meldung.Titel.empty()) {
        m_strom << meldung.Titel << ": ";
    }
    m_strom << meldung.Text << '\n';
    m_meldungen.push_back(meldung);
}

}  // namespace tarvelin
