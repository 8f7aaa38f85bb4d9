// A list to begin with where the plan gives none.
#pragma once

#include <optional>
#include <vector>

#include "search/Aufgabe.h"

namespace tarvelin {

/// A list of exactly the task's orders by the rules that ends, each time the order that lets it end
/// soonest. Head and pinned rows stay where they are. Nothing if it gets stuck.
[[nodiscard]] std::optional<std::vector<Auftrag>> GierigeListe(const Suchaufgabe& aufgabe);

}  // namespace tarvelin
