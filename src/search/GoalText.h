// The goal of a search as a text that a player types.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "model/ItemId.h"
#include "util/Integers.h"

namespace tarvelin {

/// What a search is to reach.
struct Goal {
    /// The plan's own research, units and defences; `levels` don't count.
    bool ofPlan = false;
    /// At least so many levels or units of each item; 0 asks for none.
    PerItem<Byte> levels{};

    friend bool operator==(const Goal&, const Goal&) = default;
};

/// The highest level or number of an item that a goal may ask for.
[[nodiscard]] Byte HighestInGoal(ItemId item);

/// Parses "werft 2, kl. transporter", "gw2 wkt" or "der ganze Plan"; for other texts the error
/// message. An item is its code, or a beginning or part of one of its names that no other item has;
/// case doesn't matter, and "ae" is "ä". Its level or number stands behind it; without one it is 1.
/// Of several levels of one item the highest counts. Commas and blanks separate; full stops, colons
/// and the words "Stufe" and "Nr." are skipped, so that rows of the lists are understood.
[[nodiscard]] std::variant<Goal, std::string> ParseGoal(std::string_view text);

/// "Raumschiffwerft 2, Kleiner Transporter 1", in the sequence of the items; "der ganze Plan";
/// empty for a goal without levels. `ParseGoal` gives the same goal back.
[[nodiscard]] std::string GoalText(const Goal& goal);

/// What may be meant by the last name in a text.
struct GoalCompletions {
    /// Where in the text that name begins, in bytes. A completion replaces all from there on.
    std::size_t begin = 0;
    /// Names of items whose names or code fit, and "der ganze Plan"; the likeliest first.
    std::vector<std::string> names;
};

/// Nothing after a comma or a number, and nothing that is already there in full.
[[nodiscard]] GoalCompletions CompleteGoal(std::string_view text);

}  // namespace tarvelin
