// The prerequisites of the game and the words of their refusals.
#include "plan/Rules.h"

#include <algorithm>

#include "model/ItemTable.h"

namespace tarvelin {

namespace {

/// What an item needs, and the words for what is missing. Where two needs have words of their
/// own, `Fehlt` is for both; elsewhere it is for any that is missing.
struct Regel {
    ItemId Item;
    /// Rows that have to stand in the list.
    LevelRequirements Braucht;
    std::string_view Fehlt;
    std::string_view ErsterFehlt = {};
    std::string_view ZweiterFehlt = {};
};

// clang-format off
constexpr PerItem<Regel> kRegeln{{{
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

static_assert(CoversEveryItem(kRegeln), "every item has its rule, in the order of the items");

constexpr std::string_view kKuppelVorhanden =
    " Bereits eine kleine Schildkuppel in der Bauliste vorhanden! ";

}  // namespace

const LevelRequirements& Listenbedarf(ItemId item) {
    return kRegeln[item].Braucht;
}

bool IstErlaubt(ItemId item, const PerItem<Byte>& listStufen) {
    // Exactly one: a loaded list with two domes opens the third.
    if (item == ItemId::klSchK && listStufen[item] == 1) {
        return false;
    }
    return std::ranges::all_of(kRegeln[item].Braucht, [&](const LevelRequirement& bedarf) {
        return listStufen[bedarf.item] >= bedarf.minLevel;
    });
}

std::optional<std::string_view> Absage(ItemId item, const Auftragsliste& liste) {
    if (IstErlaubt(item, liste.ListStufen())) {
        return std::nullopt;
    }
    if (item == ItemId::klSchK && liste.ListStufe(item) == 1) {
        return kKuppelVorhanden;
    }
    const Regel& regel = kRegeln[item];
    const auto fehlt = [&](const LevelRequirement& bedarf) {
        return liste.ListStufe(bedarf.item) < bedarf.minLevel;
    };
    const bool erster = fehlt(regel.Braucht[0]);
    if (regel.ErsterFehlt.empty() || (erster && fehlt(regel.Braucht[1]))) {
        return regel.Fehlt;
    }
    return erster ? regel.ErsterFehlt : regel.ZweiterFehlt;
}

}  // namespace tarvelin
