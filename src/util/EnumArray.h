// Tables with one value for each enumerator.
#pragma once

#include <array>
#include <cstddef>

namespace tarvelin {

/// Where the value of an enumerator stands.
template <class Aufzaehlung>
constexpr std::size_t Index(Aufzaehlung wert) {
    return static_cast<std::size_t>(wert);
}

/// One value for each enumerator of an enumeration that `Anzahl` closes.
template <class Aufzaehlung, class T>
class Je : public std::array<T, Index(Aufzaehlung::Anzahl)> {
  public:
    using std::array<T, Index(Aufzaehlung::Anzahl)>::operator[];
    constexpr T& operator[](Aufzaehlung wert) { return (*this)[Index(wert)]; }
    constexpr const T& operator[](Aufzaehlung wert) const { return (*this)[Index(wert)]; }
};

}  // namespace tarvelin
