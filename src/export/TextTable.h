// A table of texts, and the formats that it can be written in.
#pragma once

#include <string>
#include <vector>

namespace tarvelin {

using TextRow = std::vector<std::string>;
/// All rows have as many cells as the first, which is the header if there is one.
using TextTable = std::vector<TextRow>;

/// Aligned for a fixed-width font, two blanks between columns. `right`: the columns, from 0, that
/// are aligned right.
[[nodiscard]] std::string AlignedText(const TextTable& table,
                                      const std::vector<std::size_t>& right);

/// For spreadsheets: semicolons between cells, quotation marks where a cell needs them, CR LF.
[[nodiscard]] std::string CsvText(const TextTable& table);

/// Tabs between cells, which must contain neither tabs nor ends of lines.
[[nodiscard]] std::string TsvText(const TextTable& table);

/// The element `table`. The cells must need no escaping.
[[nodiscard]] std::string HtmlText(const TextTable& table);

/// Padded with blanks to `width` characters, aligned left or right.
[[nodiscard]] std::string Padded(const std::string& text, std::size_t width, bool right);

}  // namespace tarvelin
