// Shared by all fuzz targets: splits the bytes into parts, and reports what breaks a law.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

/// Called with each input, by the fuzzer or by ReplayMain.cpp.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t length);

namespace tarvelin {

/// Aborts and names the law unless it holds; the fuzzer then keeps the input.
inline void Require(bool holds, std::string_view law, std::string_view actual = "") {
    if (!holds) {
        std::fprintf(stderr, "BROKEN: %.*s: \"%.*s\"\n", static_cast<int>(law.size()), law.data(),
                     static_cast<int>(actual.size()), actual.data());
        std::abort();
    }
}

/// An input of several parts, separated by the unit separator (0x1F).
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
