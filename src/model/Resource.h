// The three resources, and values that come one for each.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "util/EnumArray.h"
#include "util/Integers.h"

namespace tarvelin {

enum class Resource : std::uint8_t { Metall, Kristall, Deuterium, Size };

inline constexpr std::array kResources{Resource::Metall, Resource::Kristall, Resource::Deuterium};

template <class T>
using PerResource = EnumArray<Resource, T>;

/// What the player reads.
inline constexpr PerResource<std::string_view> kResourceNames{{"Metall", "Kristall", "Deuterium"}};

/// Unrolled, as each event of a run does this several times.
template <class Action>
constexpr void ForEachResource(Action action) {
    action(Resource::Metall);
    action(Resource::Kristall);
    action(Resource::Deuterium);
}

/// Whole amounts, as doubles because they outgrow 64 bits.
using Cost = PerResource<double>;

/// Production factors of the metal, crystal and deuterium mine in tenths, from 0 to 10.
using MineFactors = PerResource<Byte>;

inline constexpr Byte kFullFactor = 10;
inline constexpr MineFactors kFullFactors{{kFullFactor, kFullFactor, kFullFactor}};

}  // namespace tarvelin
