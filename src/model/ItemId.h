// The twenty items of the build list, and the queues that they wait in.
#pragma once

#include <cstddef>
#include <cstdint>

#include "util/EnumArray.h"

namespace tarvelin {

/// In the sequence of the pictures in the window. Every table of the items has one row for each in
/// this sequence; a missing row doesn't compile.
enum class ItemId : std::uint8_t {
    MetMine,
    KrisMine,
    DeutMine,
    SKW,
    Robo,
    Werft,
    Folab,
    Solsats,
    LJs,
    KTs,
    Spios,
    Rakws,
    lLasers,
    sLasers,
    klSchK,
    ENTech,
    VerbTech,
    LaserTech,
    SpioTech,
    SchTech,
    Size,
};

inline constexpr std::size_t kNumItems = IndexOf(ItemId::Size);

template <class T>
using PerItem = EnumArray<ItemId, T>;

/// The order queues.
enum class Queue : std::uint8_t { Building, Shipyard, Research, None, Size };

template <class T>
using PerQueue = EnumArray<Queue, T>;

/// Whether a table has one row for each item, in the sequence of `ItemId`.
template <class Table>
constexpr bool CoversEveryItem(const Table& table) {
    for (std::size_t i = 0; i < kNumItems; ++i) {
        if (table[i].item != static_cast<ItemId>(i)) {
            return false;
        }
    }
    return table.size() == kNumItems;
}

}  // namespace tarvelin
