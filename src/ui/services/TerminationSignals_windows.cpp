// Nothing to do: this platform ends a session by window messages.
#include <utility>

#include "ui/services/TerminationSignals.h"

namespace tarvelin {

TerminationSignals::TerminationSignals(std::function<void()> finish)
    : m_finish(std::move(finish)) {}

TerminationSignals::~TerminationSignals() = default;

}  // namespace tarvelin
