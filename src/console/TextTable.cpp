// Widths of columns.
#include "console/TextTable.h"

#include <algorithm>
#include <string_view>

namespace tarvelin {

namespace {

/// Characters of a UTF-8 text.
std::size_t Breite(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char zeichen) { return (static_cast<unsigned char>(zeichen) & 0xC0U) != 0x80U; }));
}

}  // namespace

std::string Aufgefuellt(const std::string& text, std::size_t breite, bool rechts) {
    const std::size_t laenge = Breite(text);
    const std::string luecke(laenge < breite ? breite - laenge : 0, ' ');
    return rechts ? luecke + text : text + luecke;
}

void SchreibeTabelle(std::ostream& strom, const std::vector<std::vector<std::string>>& zeilen,
                     const std::vector<std::size_t>& rechts) {
    std::vector<std::size_t> breiten(zeilen.empty() ? 0 : zeilen.front().size());
    for (const auto& zeile : zeilen) {
        for (std::size_t i = 0; i < breiten.size(); ++i) {
            breiten[i] = std::max(breiten[i], Breite(zeile[i]));
        }
    }
    for (const auto& zeile : zeilen) {
        std::string text;
        for (std::size_t i = 0; i < breiten.size(); ++i) {
            const bool anRechts = std::ranges::find(rechts, i) != rechts.end();
            text += Aufgefuellt(zeile[i], breiten[i], anRechts) + "  ";
        }
        strom << text.substr(0, text.find_last_not_of(' ') + 1) << '\n';
    }
}

}  // namespace tarvelin
