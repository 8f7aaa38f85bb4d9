// This platform tells the end of a session by the window's own messages.
#include <utility>

#include "ui/services/TerminationSignals.h"

namespace tarvelin {

TerminationSignals::TerminationSignals(std::function<void()> finish)
    : m_finish(std::move(finish)) {}

TerminationSignals::~TerminationSignals() = default;

}  // namespace tarvelin
