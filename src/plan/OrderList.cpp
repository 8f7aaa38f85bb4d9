// The counters of the list.
#include "plan/OrderList.h"

#include <algorithm>

namespace tarvelin {

void Auftragsliste::HaengeAn(const Auftrag& auftrag) {
    m_auftraege[m_zahl++] = auftrag;
    if (auftrag.Was == Auftrag::Art::Item) {
        ++m_listStufe[auftrag.Item];
    } else if (auftrag.Was == Auftrag::Art::Produktion) {
        m_listFaktor = auftrag.Faktoren;
    }
}

void Auftragsliste::NimmLetzten() {
    const Auftrag letzter = m_auftraege[--m_zahl];
    if (letzter.Was == Auftrag::Art::Item) {
        --m_listStufe[letzter.Item];
    } else if (letzter.Was == Auftrag::Art::Produktion) {
        const auto uebrige = Alle();
        const auto vorige = std::ranges::find(uebrige.rbegin(), uebrige.rend(),
                                              Auftrag::Art::Produktion, &Auftrag::Was);
        m_listFaktor = vorige == uebrige.rend() ? kFullFactors : vorige->Faktoren;
    }
}

}  // namespace tarvelin
