// An array indexed by an enumeration.
#pragma once

#include <array>
#include <cstddef>

namespace tarvelin {

template <class Enumeration>
constexpr std::size_t IndexOf(Enumeration value) {
    return static_cast<std::size_t>(value);
}

/// One value per enumerator; the last enumerator has to be `Size`.
template <class Enumeration, class T>
class EnumArray : public std::array<T, IndexOf(Enumeration::Size)> {
  public:
    using std::array<T, IndexOf(Enumeration::Size)>::operator[];
    constexpr T& operator[](Enumeration value) { return (*this)[IndexOf(value)]; }
    constexpr const T& operator[](Enumeration value) const { return (*this)[IndexOf(value)]; }
};

}  // namespace tarvelin
