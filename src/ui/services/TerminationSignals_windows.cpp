// This platform tells the end of a session by the window's own messages.
#include <utility>

#include "ui/services/TerminationSignals.h"

namespace tarvelin {

Endesignale::Endesignale(std::function<void()> beende) : m_beende(std::move(beende)) {}

Endesignale::~Endesignale() = default;

}  // namespace tarvelin
