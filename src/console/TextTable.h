// Aligned text.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tarvelin {

/// Rows of texts below each other, two blanks between columns. Every row has as many as the first.
/// The columns of `rechts`, from 0, stand at the right.
void SchreibeTabelle(std::ostream& strom, const std::vector<std::vector<std::string>>& zeilen,
                     const std::vector<std::size_t>& rechts);

/// With blanks behind it, or in front of it, up to so many characters.
[[nodiscard]] std::string Aufgefuellt(const std::string& text, std::size_t breite, bool rechts);

}  // namespace tarvelin
