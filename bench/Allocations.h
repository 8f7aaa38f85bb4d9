// Counts heap allocations of the measured code.
#pragma once

#include <cstddef>

namespace tarvelin {

/// Calls of the global operator new since the program started.
[[nodiscard]] std::size_t Allocations();

}  // namespace tarvelin
