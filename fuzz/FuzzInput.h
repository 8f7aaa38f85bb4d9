// What all targets of the fuzzer share: how bytes become inputs, and how a broken promise ends.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

/// Called with each input, by the fuzzer and by the replay of its finds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge);

namespace tarvelin {

/// Ends the program with a word on what didn't hold; the fuzzer keeps the input.
inline void Verlange(bool haelt, std::string_view gesetz, std::string_view ist = "") {
    if (!haelt) {
        std::fprintf(stderr, "BROKEN: %.*s: \"%.*s\"\n", static_cast<int>(gesetz.size()),
                     gesetz.data(), static_cast<int>(ist.size()), ist.data());
        std::abort();
    }
}

/// Bytes of which the first parts end at a unit separator each, and the last one at their end.
class Eingabe {
  public:
    Eingabe(const std::uint8_t* daten, std::size_t laenge)
        : m_rest(reinterpret_cast<const char*>(daten), laenge) {}

    std::string NimmTeil() {
        const auto ende = std::min(m_rest.find('\x1F'), m_rest.size());
        std::string teil(m_rest.substr(0, ende));
        m_rest.remove_prefix(std::min(ende + 1, m_rest.size()));
        return teil;
    }
    [[nodiscard]] std::string_view Rest() const { return m_rest; }

  private:
    std::string_view m_rest;
};

}  // namespace tarvelin
