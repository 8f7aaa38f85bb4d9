// What all targets of the fuzzer share: how bytes become inputs, and how a broken promise ends.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

/// Called with each input, by the fuzzer and by the replay of its finds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t length);

namespace tarvelin {

/// Ends the program with a word on what didn't hold; the fuzzer keeps the input.
inline void Require(bool keeps, std::string_view law, std::string_view actual = "") {
    if (!keeps) {
        std::fprintf(stderr, "BROKEN: %.*s: \"%.*s\"\n", static_cast<int>(law.size()), law.data(),
                     static_cast<int>(actual.size()), actual.data());
        std::abort();
    }
}

/// Bytes of which the first parts end at a unit separator each, and the last one at their end.
class FuzzInput {
  public:
    FuzzInput(const std::uint8_t* data, std::size_t length)
        : m_rest(reinterpret_cast<const char*>(data), length) {}

    std::string TakePart() {
        const auto end = std::min(m_rest.find('\x1F'), m_rest.size());
        std::string part(m_rest.substr(0, end));
        m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
        return part;
    }
    [[nodiscard]] std::string_view Rest() const { return m_rest; }

  private:
    std::string_view m_rest;
};

}  // namespace tarvelin
