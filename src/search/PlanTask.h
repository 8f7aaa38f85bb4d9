// From a plan and a player's wish to a task of the search, and back to a plan.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "plan/Plan.h"
#include "search/Search.h"

namespace tarvelin {

struct Suchwunsch {
    /// What has to stand at the end, "GW2 FV2 WKT1"; "plan" for the plan's own research, units and
    /// defences. Nothing: the plan's orders in another order.
    std::optional<std::string> Ziel{};
    /// Rows that keep their place, from 1, first and last of each stretch.
    std::vector<std::pair<std::size_t, std::size_t>> Fest{};
    /// Production rows may move too.
    bool Frei = false;
    /// Orders that start before are played already.
    std::optional<DateTime> Ab{};
};

/// Why there is nothing to search.
struct Suchabsage {
    std::string Text;
    /// The wish makes no sense for any plan, or not for a list of this length.
    bool FalscherAufruf = false;
};

struct Planaufgabe {
    Suchaufgabe Aufgabe;
    /// What the plan itself is worth, if it ends and has what is wanted.
    std::optional<Fund> Vorher;
    /// The sleep row that keeps the others from starting too early.
    std::optional<SleepRow> Pause;
};

[[nodiscard]] std::variant<Planaufgabe, Suchabsage> StelleAufgabe(const Plan& plan,
                                                                  const Suchwunsch& wunsch);

/// The search, and never less than the plan itself.
[[nodiscard]] Suchergebnis Suche(const Planaufgabe& aufgabe, const Suchumfang& umfang,
                                 const std::atomic<bool>& halt,
                                 const std::function<void(const Fortschritt&)>& melde);

/// The plan with another list, and with the pause in front of its sleep rows.
[[nodiscard]] Plan MitListe(const Plan& plan, const std::vector<Order>& orders,
                            const std::optional<SleepRow>& pause);

}  // namespace tarvelin
