// Why an order wasn't given earlier, in words.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "simulation/Ablauf.h"

namespace tarvelin {

/// What held back the order of a row: the resource with the amount that was short, a queue and
/// until when, a level that was missing, the sleep window that moved it, or the row before it; the
/// click buffer, as long as nothing but clicks lay before it. Empty for the first order of a player
/// without a click buffer, and for a row that never started.
[[nodiscard]] std::string Wartetext(const Ablauf& ablauf, std::size_t zeile);

/// "Bauschleife", "Werftschleife" or "Forschungsschleife"; empty for none.
[[nodiscard]] std::string_view Schlangenname(Schlange schlange);

}  // namespace tarvelin
