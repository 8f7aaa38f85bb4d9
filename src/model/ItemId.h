// The twenty things that a player can put into the build list.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tarvelin {

/// Named after the objects of `Startplanet`, in the order in which a reset goes through them.
enum class ItemId : std::uint8_t {
    DeutMine,
    KrisMine,
    MetMine,
    SKW,
    Robo,
    Werft,
    Folab,
    Solsats,
    Rakws,
    lLasers,
    sLasers,
    ENTech,
    VerbTech,
    LaserTech,
    Spios,
    LJs,
    SpioTech,
    KTs,
    SchTech,
    klSchK,
};

inline constexpr std::size_t kItemAnzahl = static_cast<std::size_t>(ItemId::klSchK) + 1;

constexpr std::size_t Index(ItemId item) {
    return static_cast<std::size_t>(item);
}

/// One value for each item.
template <class T>
class JeItem : public std::array<T, kItemAnzahl> {
  public:
    using std::array<T, kItemAnzahl>::operator[];
    constexpr T& operator[](ItemId item) { return (*this)[Index(item)]; }
    constexpr const T& operator[](ItemId item) const { return (*this)[Index(item)]; }
};

}  // namespace tarvelin
