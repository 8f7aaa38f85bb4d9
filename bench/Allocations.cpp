// The global allocation functions, counting. A file of its own, as the compiler must not see
// through them where they are called.
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

void operator delete(void* memory, std::size_t /*groesse*/) noexcept {
    std::free(memory);
}
