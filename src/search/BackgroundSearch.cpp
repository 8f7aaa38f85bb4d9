// The thread of a search.
#include "search/BackgroundSearch.h"

#include <utility>

namespace tarvelin {

Hintergrundsuche::Hintergrundsuche(Planaufgabe aufgabe, const Suchumfang& umfang,
                                   Empfaenger empfaenger)
    : m_aufgabe(std::move(aufgabe)),
      m_umfang(umfang),
      m_empfaenger(std::move(empfaenger)),
      m_thread([this] {
          m_empfaenger.Fertig(Suche(m_aufgabe, m_umfang, m_halt, m_empfaenger.Stand));
      }) {}

}  // namespace tarvelin
