// Sleep windows.
#include "model/cSchlafzeit.h"

namespace tarvelin {

void cSchlafzeit::Init(DateTime theStartzeit, DateTime theEndzeit) {
    m_startzeit = theStartzeit;
    m_endzeit = theEndzeit;
}

}  // namespace tarvelin
