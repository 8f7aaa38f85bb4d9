// Widths of columns.
#include "console/TextTable.h"

#include <algorithm>

#include "util/Utf8.h"

namespace tarvelin {

std::string Padded(const std::string& text, std::size_t width, bool right) {
    const std::size_t length = CountCharacters(text);
    const std::string gap(length < width ? width - length : 0, ' ');
    return right ? gap + text : text + gap;
}

void WriteTable(std::ostream& stream, const std::vector<std::vector<std::string>>& lines,
                const std::vector<std::size_t>& right) {
    std::vector<std::size_t> widths(lines.empty() ? 0 : lines.front().size());
    for (const auto& line : lines) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            widths[i] = std::max(widths[i], CountCharacters(line[i]));
        }
    }
    for (const auto& line : lines) {
        std::string text;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const bool attachRight = std::ranges::find(right, i) != right.end();
            text += Padded(line[i], widths[i], attachRight) + "  ";
        }
        stream << text.substr(0, text.find_last_not_of(' ') + 1) << '\n';
    }
}

}  // namespace tarvelin
