// The twenty things that a player can put into the build list, and the queues that they wait in.
#pragma once

#include <cstddef>
#include <cstdint>

#include "util/EnumArray.h"

namespace tarvelin {

/// In the order of the pictures on the window. Every table of the items has its rows in this order,
/// and none compiles while it lacks one.
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
    Anzahl,
};

inline constexpr std::size_t kItemAnzahl = IndexOf(ItemId::Anzahl);

template <class T>
using JeItem = EnumArray<ItemId, T>;

/// The order queues.
enum class Schlange : std::uint8_t { Gebaeude, Werft, Forschung, Keine, Anzahl };

template <class T>
using JeSchlange = EnumArray<Schlange, T>;

/// Whether a table has the row of each item, in the order of the items.
template <class Tabelle>
constexpr bool HatJedesItem(const Tabelle& tabelle) {
    for (std::size_t i = 0; i < kItemAnzahl; ++i) {
        if (tabelle[i].Item != static_cast<ItemId>(i)) {
            return false;
        }
    }
    return tabelle.size() == kItemAnzahl;
}

}  // namespace tarvelin
