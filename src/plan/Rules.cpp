// The prerequisites of the game and the words of their refusals.
#include "plan/Rules.h"

#include <algorithm>

#include "model/ItemTable.h"

namespace tarvelin {

namespace {

/// What an item needs, and the refusals. Where two requirements have texts of their own,
/// `missingText` stands for both missing, elsewhere for any.
struct Rule {
    ItemId item;
    /// Levels that the list has to contain.
    LevelRequirements requirements;
    std::string_view missingText;
    std::string_view firstMissingText = {};
    std::string_view secondMissingText = {};
};

// clang-format off
constexpr PerItem<Rule> kRules{{{
    {ItemId::MetMine, {}, {}},
    {ItemId::KrisMine, {}, {}},
    {ItemId::DeutMine, {}, {}},
    {ItemId::SKW, {}, {}},
    {ItemId::Robo, {{{ItemId::DeutMine, 1}, {ItemId::SKW, 1}}},
     " Noch keine Deuteriummine oder kein Solarkraftwerk in der Bauliste, bauen wäre unmöglich! "},
    {ItemId::Werft, {{{ItemId::DeutMine, 1}, {ItemId::Robo, 2}}},
     " Weder eine Roboterfabrik (Stufe:2) noch eine Deuteriummine in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Deuteriummine in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Roboterfabrik (Stufe:2) in der Bauliste, bauen wäre unmöglich! "},
    {ItemId::Folab, {{{ItemId::DeutMine, 1}, {ItemId::SKW, 1}}},
     " Noch keine Deuteriummine oder kein Solarkraftwerk in der Bauliste, bauen wäre unmöglich! "},
    {ItemId::Solsats, {{{ItemId::Werft, 1}}},
     " Noch keine Raumschiffwerft in der Bauliste, bauen wäre unmöglich! "},
    {ItemId::LJs, {{{ItemId::Werft, 1}, {ItemId::VerbTech, 1}}},
     " Weder eine Raumschiffwerft(Stufe:1) noch Verbrennungstriebwerk(Stufe: 1) in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Raumschiffwerft(Stufe:1) in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Verbrennungstriebwerk(Stufe:1) in der Bauliste, bauen wäre unmöglich! "},
    {ItemId::KTs, {{{ItemId::Werft, 2}, {ItemId::VerbTech, 2}}},
     " Weder eine Raumschiffwerft(Stufe:2) noch Verbrennungstriebwerk(Stufe: 2) in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Raumschiffwerft(Stufe:2) in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Verbrennungstriebwerk(Stufe:2) in der Bauliste, bauen wäre unmöglich! "},
    {ItemId::Spios, {{{ItemId::Werft, 3}, {ItemId::VerbTech, 3}, {ItemId::SpioTech, 2}}},
     " Es werden noch benötigt: Spionagetichnik(Stufe:2), Raumschiffwerft(Stufe:3), Verbrennungstriebwerk(Stufe:3) "},
    {ItemId::Rakws, {{{ItemId::Werft, 1}}},
     " Noch keine Raumschiffwerft in der Bauliste, bauen wäre unmöglich! "},
    {ItemId::lLasers, {{{ItemId::Werft, 2}, {ItemId::LaserTech, 3}}},
     " Weder eine Raumschiffwerft(Stufe:2) noch Lasertechnik(Stufe: 3) in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Raumschiffwerft(Stufe:2) in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Lasertechnik(Stufe:3) in der Bauliste, bauen wäre unmöglich! "},
    {ItemId::sLasers, {{{ItemId::Werft, 4}, {ItemId::LaserTech, 6}, {ItemId::ENTech, 3}}},
     " Benötigt werden Raumschiffwerft(Stufe:4), Lasertechnik(Stufe: 6), Energietechnik(Stufe:3) "},
    {ItemId::klSchK, {{{ItemId::Werft, 1}, {ItemId::SchTech, 2}}},
     " Weder eine Raumschiffwerft(Stufe:1) noch Schildtechnik(Stufe: 2) in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Raumschiffwerft(Stufe:1) in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Schildtechnik(Stufe:2) in der Bauliste, bauen wäre unmöglich! "},
    {ItemId::ENTech, {{{ItemId::Folab, 1}}},
     " Noch keine Forschungslabor in der Bauliste, bauen wäre unmöglich! "},
    {ItemId::VerbTech, {{{ItemId::Folab, 1}, {ItemId::ENTech, 1}}},
     " Weder ein Forschungslabor noch Energietechnik(Stufe:1) in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Forschungslabor in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Energietechnik(Stufe:1) in der Bauliste, forschen wäre unmöglich! "},
    {ItemId::LaserTech, {{{ItemId::Folab, 1}, {ItemId::ENTech, 2}}},
     " Weder ein Forschungslabor(Stufe:1) noch Energietechnik(Stufe:2) in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Forschungslabor(Stufe:1) in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Energietechnik(Stufe:2) in der Bauliste, forschen wäre unmöglich! "},
    {ItemId::SpioTech, {{{ItemId::Folab, 3}}},
     " Noch keine Forschungslabor(Stufe:3) in der Bauliste, bauen wäre unmöglich! "},
    {ItemId::SchTech, {{{ItemId::Folab, 6}, {ItemId::ENTech, 3}}},
     " Weder ein Forschungslabor(Stufe:6) noch Energietechnik(Stufe:3) in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Forschungslabor(Stufe:6) in der Bauliste, bauen wäre unmöglich! ",
     " Noch keine Energietechnik(Stufe:3) in der Bauliste, forschen wäre unmöglich! "},
}}};
// clang-format on

static_assert(CoversEveryItem(kRules), "one rule for each item, in the sequence of ItemId");

constexpr std::string_view kDomePresent =
    " Bereits eine kleine Schildkuppel in der Bauliste vorhanden! ";

}  // namespace

const LevelRequirements& ListRequirements(ItemId item) {
    return kRules[item].requirements;
}

bool IsAllowed(ItemId item, const PerItem<Byte>& listStufen) {
    // Equal, not at least: a loaded list with two domes allows a third.
    if (listStufen[item] == RowOf(item).traits.maxCount) {
        return false;
    }
    return std::ranges::all_of(kRules[item].requirements, [&](const LevelRequirement& requirement) {
        return listStufen[requirement.item] >= requirement.minLevel;
    });
}

std::optional<std::string_view> Refusal(ItemId item, const OrderList& list) {
    if (IsAllowed(item, list.ListStufe())) {
        return std::nullopt;
    }
    if (list.ListStufe(item) == RowOf(item).traits.maxCount) {
        return kDomePresent;
    }
    const Rule& rule = kRules[item];
    const auto missing = [&](const LevelRequirement& requirement) {
        return list.ListStufe(requirement.item) < requirement.minLevel;
    };
    const bool first = missing(rule.requirements[0]);
    if (rule.firstMissingText.empty() || (first && missing(rule.requirements[1]))) {
        return rule.missingText;
    }
    return first ? rule.firstMissingText : rule.secondMissingText;
}

}  // namespace tarvelin
