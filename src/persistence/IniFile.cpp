// Parsing and editing of profile files.
#include "persistence/IniFile.h"

#include <algorithm>
#include <array>
#include <utility>

#include "util/Codepage1252.h"
#include "util/Utf8.h"

namespace tarvelin {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::array<std::pair<std::string_view, std::optional<ByteOrder>>, 3> kByteOrderMarks{
    {{"\xEF\xBB\xBF", std::nullopt},
     {"\xFF\xFE", ByteOrder::LittleEndian},
     {"\xFE\xFF", ByteOrder::BigEndian}}};
constexpr std::size_t kMaxLength = 255;

std::string Lowercase(std::string_view text) {
    std::string lowercase(text);
    std::ranges::transform(lowercase, lowercase.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                    : character;
    });
    return lowercase;
}

std::string_view Trimmed(std::string_view text, std::string_view blanks = " \t\v\f") {
    const auto begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) {
        return {};
    }
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

/// A line without its end and without blanks around it.
std::string_view Content(std::string_view line) {
    while (line.ends_with('\n') || line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return Trimmed(line);
}

bool IsEnded(std::string_view line) {
    return line.ends_with('\n') || line.ends_with('\r');
}

void EndLine(std::string& line) {
    if (!IsEnded(line)) {
        line += kLineEnd;
    }
}

/// Nothing if it isn't a section line.
std::optional<std::string_view> SectionName(std::string_view content) {
    if (!content.starts_with('[')) {
        return std::nullopt;
    }
    content.remove_prefix(1);
    return Trimmed(content.substr(0, content.find(']')));
}

/// Key and value; nothing if it isn't a key line.
std::optional<std::pair<std::string_view, std::string_view>> KeyLine(std::string_view content) {
    const auto equals = content.find('=');
    if (content.starts_with(';') || equals == std::string_view::npos) {
        return std::nullopt;
    }
    return std::pair(Trimmed(content.substr(0, equals)), Trimmed(content.substr(equals + 1)));
}

std::string_view Unquoted(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

std::string_view UpToNul(std::string_view value) {
    return value.substr(0, value.find('\0'));
}

/// By characters, as each would be one byte in the file.
std::string_view CutDefault(std::string_view utf8) {
    std::size_t characters = 0;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        if (!IsContinuation(utf8[i]) && ++characters > kMaxLength) {
            return UpToNul(utf8.substr(0, i));
        }
    }
    return UpToNul(utf8);
}

/// Takes the first line with its end: LF, CR LF or CR.
std::string_view TakeLine(std::string_view& bytes) {
    auto end = std::min(bytes.find_first_of(kLineEnd), bytes.size());
    if (bytes.substr(end).starts_with(kLineEnd)) {
        ++end;
    }
    const std::string_view line = bytes.substr(0, end + 1);
    bytes.remove_prefix(line.size());
    return line;
}

}  // namespace

IniFile::IniFile(std::string_view bytes) : m_blocks(1) {
    for (const auto& [mark, byteOrder] : kByteOrderMarks) {
        if (bytes.starts_with(mark)) {
            m_byteOrderMark = mark;
            m_utf16 = byteOrder;
        }
    }
    bytes.remove_prefix(m_byteOrderMark.size());
    const std::string text = m_utf16 ? FromUtf16(bytes, *m_utf16) : std::string();
    std::string_view rest = m_utf16 ? text : bytes;
    while (!rest.empty()) {
        AddLine(TakeLine(rest));
    }
}

std::optional<IniFile> IniFile::Load(const std::filesystem::path& file, const FileSystem& system) {
    const auto bytes = ReadFileToString(file, kMaxBytes, system);
    return bytes ? std::optional<IniFile>(*bytes) : std::nullopt;
}

std::optional<IniFile> IniFile::LoadOrEmpty(const std::filesystem::path& file,
                                            const FileSystem& system) {
    return system.KindOf(file) == FileSystem::Kind::Nothing ? IniFile("") : Load(file, system);
}

std::string IniFile::ReadINI(std::string_view Section, std::string_view Key,
                             std::string_view Default) const {
    if (const Block* const block = FindBlock(Section)) {
        const auto found = block->lineOfKey.find(Lowercase(To1252(Key)));
        if (found != block->lineOfKey.end()) {
            const auto line = KeyLine(Content(block->lines[found->second]));
            const std::string value = ToCodepage(Unquoted(line->second));
            return From1252(UpToNul(std::string_view(value).substr(0, kMaxLength)));
        }
    }
    return std::string(CutDefault(Default));
}

std::optional<std::size_t> IniFile::LineNumber(std::string_view section,
                                               std::string_view key) const {
    const Block* const wanted = FindBlock(section);
    if (wanted == nullptr) {
        return std::nullopt;
    }
    const auto found = wanted->lineOfKey.find(Lowercase(To1252(key)));
    if (found == wanted->lineOfKey.end()) {
        return std::nullopt;
    }
    std::size_t before = 0;
    for (const Block& block : m_blocks) {
        if (&block == wanted) {
            break;
        }
        before += block.lines.size();
    }
    return before + found->second + 1;
}

void IniFile::WriteINI(std::string_view Section, std::string_view Key, std::string_view Value) {
    Block& block = FindOrAddBlock(Section);
    auto& lines = block.lines;
    const std::string name = To1252(Key);
    // The rest of a value with a line break would become a line of its own.
    const auto singleLine = Value.substr(0, Value.find_first_of(std::string_view("\r\n\0", 3)));
    const std::string rest = "=" + ToLine(To1252(singleLine)) + std::string(kLineEnd);
    const auto found = block.lineOfKey.find(Lowercase(name));
    if (found != block.lineOfKey.end()) {
        std::string& line = lines[found->second];
        line = std::string(KeyLine(Content(line))->first) + rest;
        return;
    }
    // After the last line that isn't blank; the section line never is.
    std::size_t position = lines.size();
    while (Content(lines[position - 1]).empty()) {
        --position;
    }
    EndLine(lines[position - 1]);
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(position), ToLine(name) + rest);
    block.lineOfKey.emplace(Lowercase(name), position);
}

std::string IniFile::Bytes() const {
    std::string text;
    for (const Block& block : m_blocks) {
        for (const std::string& line : block.lines) {
            text += line;
        }
    }
    return m_byteOrderMark + (m_utf16 ? ToUtf16(text, *m_utf16) : text);
}

void IniFile::AddLine(std::string_view line) {
    const std::string_view content = Content(line);
    if (const auto name = SectionName(content)) {
        BeginBlock(Lowercase(ToCodepage(*name)));
    } else if (const auto pair = KeyLine(content); pair && m_blocks.back().reachable) {
        Block& block = m_blocks.back();
        block.lineOfKey.emplace(Lowercase(ToCodepage(pair->first)), block.lines.size());
    }
    m_blocks.back().lines.emplace_back(line);
}

/// A repeated section is unreachable; consecutive unreachable sections share a block.
void IniFile::BeginBlock(std::string_view name) {
    const bool isNew = m_blockOfName.emplace(name, m_blocks.size()).second;
    if (isNew || m_blocks.back().reachable) {
        m_blocks.emplace_back();
        m_blocks.back().reachable = isNew;
    }
}

const IniFile::Block* IniFile::FindBlock(std::string_view section) const {
    const auto position = m_blockOfName.find(Lowercase(To1252(section)));
    return position == m_blockOfName.end() ? nullptr : &m_blocks[position->second];
}

IniFile::Block& IniFile::FindOrAddBlock(std::string_view section) {
    const std::string name = To1252(section);
    const auto position = m_blockOfName.find(Lowercase(name));
    if (position != m_blockOfName.end()) {
        return m_blocks[position->second];
    }
    if (auto& last = m_blocks.back().lines; !last.empty()) {
        EndLine(last.back());
    }
    BeginBlock(Lowercase(name));
    m_blocks.back().lines.push_back("[" + ToLine(name) + "]" + std::string(kLineEnd));
    return m_blocks.back();
}

std::string IniFile::ToCodepage(std::string_view text) const {
    return m_utf16 ? To1252(text) : std::string(text);
}

std::string IniFile::ToLine(std::string_view in1252) const {
    return m_utf16 ? From1252(in1252) : std::string(in1252);
}

}  // namespace tarvelin
