// Aligned text.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tarvelin {

/// Rows of texts below each other, two blanks between columns. Every row has as many as the first.
/// The columns of `right`, from 0, stand at the right.
void WriteTable(std::ostream& stream, const std::vector<std::vector<std::string>>& rows,
                const std::vector<std::size_t>& right);

/// With blanks behind it, or in front of it, up to so many characters.
[[nodiscard]] std::string Padded(const std::string& text, std::size_t width, bool right);

}  // namespace tarvelin
