// The three mines: what they yield and what energy they need.
#pragma once

#include "model/ItemId.h"
#include "model/Resource.h"
#include "model/RunConditions.h"
#include "util/FixedPoint.h"

namespace tarvelin {

/// The mine of each resource.
inline constexpr JeRohstoff<ItemId> kMinen{{ItemId::MetMine, ItemId::KrisMine, ItemId::DeutMine}};

/// What a mine yields.
[[nodiscard]] Rohstoff RohstoffDer(ItemId mine);

/// Energy that the mine of a resource needs in a run, a whole number.
[[nodiscard]] double Energiebedarf(Rohstoff mine, Byte stufe, Byte faktor);

/// The same as the build list works it out, which can differ by one where the factor isn't full.
[[nodiscard]] double EnergiebedarfDerListe(Rohstoff mine, Byte stufe, Byte faktor);

/// Units per hour, a whole number, with this share of the mines' energy need met.
[[nodiscard]] FixedPoint Minenertrag(Rohstoff mine, Byte stufe, Byte faktor, FixedPoint prodFaktor,
                                     const Startbedingungen& bedingungen);

}  // namespace tarvelin
