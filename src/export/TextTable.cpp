// Aligns the columns of a table.
#include "export/TextTable.h"

#include <algorithm>

#include "util/Utf8.h"

namespace tarvelin {

std::string Padded(const std::string& text, std::size_t width, bool right) {
    const std::size_t length = CountCharacters(text);
    const std::string gap(length < width ? width - length : 0, ' ');
    return right ? gap + text : text + gap;
}

void WriteTable(std::ostream& stream, const std::vector<std::vector<std::string>>& rows,
                const std::vector<std::size_t>& right) {
    std::vector<std::size_t> widths(rows.empty() ? 0 : rows.front().size());
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            widths[i] = std::max(widths[i], CountCharacters(row[i]));
        }
    }
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const bool alignRight = std::ranges::find(right, i) != right.end();
            line += Padded(row[i], widths[i], alignRight) + "  ";
        }
        stream << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
    }
}

}  // namespace tarvelin
