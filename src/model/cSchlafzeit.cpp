// Sleep windows.
#include "model/cSchlafzeit.h"

namespace tarvelin {

void cSchlafzeit::Init(Zeitpunkt theStartzeit, Zeitpunkt theEndzeit) {
    m_startzeit = theStartzeit;
    m_endzeit = theEndzeit;
}

}  // namespace tarvelin
