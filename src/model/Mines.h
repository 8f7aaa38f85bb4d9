// The three mines: what they yield and what energy they need.
#pragma once

#include "model/ItemId.h"
#include "model/Resource.h"
#include "model/RunConditions.h"
#include "util/FixedPoint.h"

namespace tarvelin {

/// The mine of each resource.
inline constexpr PerResource<ItemId> kMines{{ItemId::MetMine, ItemId::KrisMine, ItemId::DeutMine}};

/// What a mine yields.
[[nodiscard]] Resource ResourceOf(ItemId mine);

/// Energy that the mine of a resource needs in a run, a whole number.
[[nodiscard]] double GetEnergieVerbrauch(Resource mine, Byte level, Byte factor);

/// The same as the build list works it out, which can differ by one where the factor isn't full.
[[nodiscard]] double ListEnergieVerbrauch(Resource mine, Byte level, Byte factor);

/// Units per hour, a whole number, with this share of the mines' energy need met.
[[nodiscard]] FixedPoint GetProduktion(Resource mine, Byte level, Byte factor,
                                       FixedPoint prodFaktor, const RunConditions& conditions);

}  // namespace tarvelin
