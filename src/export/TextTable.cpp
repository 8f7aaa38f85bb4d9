// Aligns, joins and quotes cells.
#include "export/TextTable.h"

#include <algorithm>

#include "util/Utf8.h"

namespace tarvelin {

namespace {

std::string CsvField(const std::string& text) {
    if (text.find_first_of(";\"\r\n") == std::string::npos) {
        return text;
    }
    std::string field = "\"";
    for (const char character : text) {
        field += character;
        if (character == '"') {
            field += character;
        }
    }
    return field + "\"";
}

/// What stands around rows and between cells.
struct Frame {
    const char* beforeRow;
    const char* between;
    const char* afterRow;
};

template <class CellText>
std::string Joined(const TextTable& table, const Frame& frame, CellText cellText) {
    std::string text;
    for (const TextRow& row : table) {
        text += frame.beforeRow;
        for (std::size_t i = 0; i < row.size(); ++i) {
            text += (i == 0 ? "" : frame.between) + cellText(row[i]);
        }
        text += frame.afterRow;
    }
    return text;
}

const std::string& AsIs(const std::string& cell) {
    return cell;
}

}  // namespace

std::string Padded(const std::string& text, std::size_t width, bool right) {
    const std::size_t length = CountCharacters(text);
    const std::string gap(length < width ? width - length : 0, ' ');
    return right ? gap + text : text + gap;
}

std::string AlignedText(const TextTable& table, const std::vector<std::size_t>& right) {
    std::vector<std::size_t> widths(table.empty() ? 0 : table.front().size());
    for (const TextRow& row : table) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            widths[i] = std::max(widths[i], CountCharacters(row[i]));
        }
    }
    std::string text;
    for (const TextRow& row : table) {
        std::string line;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const bool alignRight = std::ranges::find(right, i) != right.end();
            line += Padded(row[i], widths[i], alignRight) + "  ";
        }
        text += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
    }
    return text;
}

std::string CsvText(const TextTable& table) {
    return Joined(table, {.beforeRow = "", .between = ";", .afterRow = "\r\n"}, CsvField);
}

std::string TsvText(const TextTable& table) {
    return Joined(table, {.beforeRow = "", .between = "\t", .afterRow = "\n"}, AsIs);
}

std::string HtmlText(const TextTable& table) {
    const Frame frame{.beforeRow = "<tr><td>", .between = "</td><td>", .afterRow = "</td></tr>"};
    return "<table>" + Joined(table, frame, AsIs) + "</table>";
}

}  // namespace tarvelin
