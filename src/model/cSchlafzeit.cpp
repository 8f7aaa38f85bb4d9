// Sleep windows.
#include "model/cSchlafzeit.h"

namespace tarvelin {

void cSchlafzeit::Init(DateTime theStartzeit, DateTime theEndzeit) {
    m_Startzeit = theStartzeit;
    m_Endzeit = theEndzeit;
}

}  // namespace tarvelin
