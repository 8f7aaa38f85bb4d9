// Tables of aligned text.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tarvelin {

/// All rows have as many columns as the first; two blanks separate them. `right`: the columns, from
/// 0, that are aligned right.
void WriteTable(std::ostream& stream, const std::vector<std::vector<std::string>>& rows,
                const std::vector<std::size_t>& right);

/// Padded with blanks to `width` characters, aligned left or right.
[[nodiscard]] std::string Padded(const std::string& text, std::size_t width, bool right);

}  // namespace tarvelin
