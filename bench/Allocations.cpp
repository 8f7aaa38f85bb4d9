// The global allocation functions, counting. A file of its own, as the compiler must not see
// through them where they are called.
#include "Allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t g_allokationen = 0;

}  // namespace

namespace tarvelin {

std::size_t Allokationen() {
    return g_allokationen;
}

}  // namespace tarvelin

void* operator new(std::size_t groesse) {
    ++g_allokationen;
    if (void* const speicher = std::malloc(groesse)) {
        return speicher;
    }
    throw std::bad_alloc();
}

void operator delete(void* speicher) noexcept {
    std::free(speicher);
}

void operator delete(void* speicher, std::size_t /*groesse*/) noexcept {
    std::free(speicher);
}
