// Replaces the global allocation functions by ones that count. They have a file of their own so
// that the compiler can't inline them and drop allocations that are never used.
#include "Allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t g_allocations = 0;

}  // namespace

namespace tarvelin {

std::size_t Allocations() {
    return g_allocations;
}

}  // namespace tarvelin

void* operator new(std::size_t size) {
    ++g_allocations;
    if (void* const memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}
