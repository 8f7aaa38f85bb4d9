// The three resources.
#pragma once

#include <array>
#include <cstdint>

#include "util/EnumArray.h"
#include "util/Integers.h"

namespace tarvelin {

enum class Rohstoff : std::uint8_t { Metall, Kristall, Deuterium, Anzahl };

inline constexpr std::array kRohstoffe{Rohstoff::Metall, Rohstoff::Kristall, Rohstoff::Deuterium};

template <class T>
using JeRohstoff = EnumArray<Rohstoff, T>;

/// For each resource in its turn; without a loop, as each event of a run does this several times.
template <class Tat>
constexpr void JedenRohstoff(Tat tat) {
    tat(Rohstoff::Metall);
    tat(Rohstoff::Kristall);
    tat(Rohstoff::Deuterium);
}

/// Whole amounts. They grow beyond 64 bits, so they are doubles.
using Kosten = JeRohstoff<double>;

/// Production factors of the metal, crystal and deuterium mine in tenths, from 0 to 10.
using Minenfaktoren = JeRohstoff<Byte>;

inline constexpr Byte kVollerFaktor = 10;
inline constexpr Minenfaktoren kVolleFaktoren{{kVollerFaktor, kVollerFaktor, kVollerFaktor}};

}  // namespace tarvelin
