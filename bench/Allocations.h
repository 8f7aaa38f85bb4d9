// A count of what the measured code takes from the heap.
#pragma once

#include <cstddef>

namespace tarvelin {

/// Calls of the global operator new since the program's start.
[[nodiscard]] std::size_t Allocations();

}  // namespace tarvelin
