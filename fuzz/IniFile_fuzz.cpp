// Fuzzes profile files: what a write may change, and what a read gives back.
#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

#include "FuzzInput.h"
#include "PlanLaws.h"
#include "persistence/IniFile.h"
#include "util/Codepage1252.h"
#include "util/Utf16.h"

namespace tarvelin {
namespace {

using Lines = std::vector<std::string_view>;

/// The byte order mark of a file, empty if it has none.
std::string_view ByteOrderMark(std::string_view bytes) {
    for (const std::string_view mark : {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"}) {
        if (bytes.starts_with(mark)) {
            return mark;
        }
    }
    return {};
}

std::optional<ByteOrder> Utf16Order(std::string_view bytes) {
    const std::string_view mark = ByteOrderMark(bytes);
    if (mark.size() != 2) {
        return std::nullopt;
    }
    return mark.front() == '\xFF' ? ByteOrder::LittleEndian : ByteOrder::BigEndian;
}

/// The content of a file after its byte order mark, in 8 bits.
std::string Content(std::string_view bytes) {
    const auto byteOrder = Utf16Order(bytes);
    bytes.remove_prefix(ByteOrderMark(bytes).size());
    return byteOrder ? FromUtf16(bytes, *byteOrder) : std::string(bytes);
}

/// The lines of a text, including their ends (LF, CR LF or CR).
Lines LinesOf(std::string_view bytes) {
    Lines lines;
    while (!bytes.empty()) {
        std::size_t end = bytes.find_first_of("\r\n");
        end = end == std::string_view::npos ? bytes.size() : end + 1;
        end += bytes.substr(end - 1).starts_with("\r\n") ? 1U : 0U;
        lines.push_back(bytes.substr(0, end));
        bytes.remove_prefix(end);
    }
    return lines;
}

/// Whether a line is unchanged, but for a line end that it may have lacked.
bool HasStayed(std::string_view before, std::string_view after) {
    return after == before || (before.find_first_of("\r\n") == std::string_view::npos &&
                               after == std::string(before) + "\r\n");
}

/// Whether one line has changed, or one line or a section with one line has been inserted.
bool OnlyOnePlace(const Lines& before, const Lines& after) {
    const auto [oldFront, newFront] = std::ranges::mismatch(before, after, HasStayed);
    const auto [oldBack, newBack] = std::mismatch(before.rbegin(), std::reverse_iterator(oldFront),
                                                  after.rbegin(), std::reverse_iterator(newFront));
    const auto removed = oldBack.base() - oldFront;
    const auto inserted = newBack.base() - newFront;
    return removed == 0 ? inserted <= 2 : removed == 1 && inserted == 1;
}

/// Sections and keys of a file, found by a rough parser of our own.
std::vector<std::pair<std::string, std::string>> Names(const Lines& lines, bool utf16) {
    const auto name = [utf16](std::string_view text) {
        return From1252(utf16 ? To1252(text) : std::string(text));
    };
    std::vector<std::pair<std::string, std::string>> names;
    std::string section;
    for (const std::string_view line : lines) {
        if (line.starts_with('[')) {
            section = name(line.substr(1, line.find(']') - 1));
        } else if (const auto equals = line.find('='); equals != std::string_view::npos) {
            names.emplace_back(section, name(line.substr(0, equals)));
        }
    }
    return names;
}

bool HasMargin(std::string_view bytes) {
    constexpr std::string_view kBlanks = " \t\v\f";
    return !bytes.empty() && (kBlanks.find(bytes.front()) != std::string_view::npos ||
                              kBlanks.find(bytes.back()) != std::string_view::npos);
}

/// Whether it is a name as the program uses them: one line, no surrounding blanks, none of "[]=;".
bool IsName(std::string_view bytes) {
    return !bytes.empty() && !HasMargin(bytes) &&
           bytes.find_first_of(std::string_view("[]=;\r\n\0", 7)) == std::string_view::npos;
}

void CheckWriting(const std::string& file, const std::string& section, const std::string& key,
                  const std::string& value) {
    IniFile profile(file);
    profile.WriteINI(section, key, From1252(value));
    const std::string after = profile.Bytes();
    const std::string content = Content(file);
    const Lines lines = LinesOf(content);
    Require(ByteOrderMark(after) == ByteOrderMark(file), "the mark of the encoding stays", after);
    Require(OnlyOnePlace(lines, LinesOf(Content(after))), "a write changes one line", after);

    const IniFile before(file);
    const IniFile parsed(after);
    IniFile written("");
    written.WriteINI(section, key, "");
    for (const auto& [s, k] : Names(lines, Utf16Order(file).has_value())) {
        // Upper and lower case are the same.
        const bool itself = written.ReadINI(s, k, "-") != "-";
        Require(itself || parsed.ReadINI(s, k, "-") == before.ReadINI(s, k, "-") || HasMargin(s) ||
                    HasMargin(k),
                "a write leaves the other keys", k);
    }
    Require(parsed.ReadINI(section, key, "-") == profile.ReadINI(section, key, "-"),
            "the file holds what the memory holds", after);
    Require(!ComesBack(From1252(value)) || parsed.ReadINI(section, key, "-") == From1252(value),
            "a plain value comes back", parsed.ReadINI(section, key, "-"));
    profile.WriteINI(section, key, From1252(value));
    Require(profile.Bytes() == after, "the same write again changes nothing", profile.Bytes());
}

/// The same file in UTF-16 is read and written alike.
void CheckUtf16(const std::string& file, const std::string& section, const std::string& key,
                const std::string& value) {
    for (const auto byteOrder : {ByteOrder::LittleEndian, ByteOrder::BigEndian}) {
        const auto in16 = [&](const std::string& bytes) {
            return ToUtf16("\xEF\xBB\xBF" + From1252(bytes), byteOrder);
        };
        IniFile utf8(file);
        IniFile utf16(in16(file));
        Require(utf16.ReadINI(section, key, "-") == utf8.ReadINI(section, key, "-"),
                "16 bits are read like 8", utf16.ReadINI(section, key, "-"));
        utf8.WriteINI(section, key, From1252(value));
        utf16.WriteINI(section, key, From1252(value));
        Require(utf16.Bytes() == in16(utf8.Bytes()), "16 bits are written like 8", utf16.Bytes());
    }
}

}  // namespace
}  // namespace tarvelin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t length) {
    using namespace tarvelin;
    FuzzInput input(data, length);
    const std::string section = input.TakePart();
    const std::string key = input.TakePart();
    const std::string value = input.TakePart();
    std::string file(input.Rest());
    if (Utf16Order(file)) {
        file.resize(file.size() - file.size() % 2);
    }
    const IniFile profile(input.Rest());
    Require(profile.Bytes() == file, "a profile keeps its bytes", file);
    Require(To1252(profile.ReadINI(section, key, From1252(value))).size() <= 255,
            "a value is 255 at most");
    Require(To1252(From1252(file)) == file, "the code page loses no byte", file);
    static_cast<void>(From1252(To1252(file)));
    if (IsName(section) && IsName(key)) {
        CheckWriting(file, From1252(section), From1252(key), value);
        if (ByteOrderMark(file).empty()) {
            CheckUtf16(file, From1252(section), From1252(key), value);
        }
    }
    return 0;
}
