// A profile file in memory, read and edited as the platform's profile functions do.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "persistence/FileSystem.h"
#include "util/Utf16.h"

namespace tarvelin {

/// Names of sections and keys match as a whole, without regard to the case of ASCII letters; only
/// the first section of a name and the first key of a name in it count. The interface is UTF-8; the
/// file is Windows-1252, even after a UTF-8 byte-order mark, or UTF-16 after one of either order.
///
/// As on the platform, reading goes through the code page: other characters, in names too, read as
/// "?". Lines that aren't rewritten keep them. An odd byte at the end of UTF-16 is dropped.
class IniFile {
  public:
    /// Larger files aren't loaded; the longest plan has less than 12 MiB in UTF-16.
    static constexpr std::size_t kMaxBytes = std::size_t{16} << 20U;

    explicit IniFile(std::string_view bytes);

    /// Nothing if it isn't a regular file, can't be read or is too large.
    [[nodiscard]] static std::optional<IniFile> Load(const std::filesystem::path& file,
                                                     const FileSystem& system = NativeFileSystem());

    /// The same, but an empty profile if the file doesn't exist.
    [[nodiscard]] static std::optional<IniFile> LoadOrEmpty(
        const std::filesystem::path& file, const FileSystem& system = NativeFileSystem());

    /// The value of a key up to its first NUL and to 255 characters, without one pair of equal
    /// quotes around it; the default, cut likewise, if the section or the key is missing.
    [[nodiscard]] std::string ReadINI(std::string_view Section, std::string_view Key,
                                      std::string_view Default) const;

    /// The line, from 1, in which `ReadINI` finds a key; nothing if it is missing.
    [[nodiscard]] std::optional<std::size_t> LineNumber(std::string_view section,
                                                        std::string_view key) const;

    /// Sets a key to the value up to its first line end or NUL. An existing key keeps its place and
    /// spelling; a new one goes to the end of its section, a new section to the end of the file.
    /// All other lines keep their bytes, except that a last line without an end gets one when
    /// something is added after it.
    void WriteINI(std::string_view Section, std::string_view Key, std::string_view Value);

    [[nodiscard]] std::string Bytes() const;

  private:
    /// Consecutive lines: the first section of a name, or lines that no read reaches.
    struct Block {
        /// With their line ends, the section line first; in the bytes of the file, or as
        /// `FromUtf16` gives them.
        std::vector<std::string> lines;
        /// The index of the first line of each key, by its name in lower case.
        std::unordered_map<std::string, std::size_t> lineOfKey;
        bool reachable = false;
    };

    void AddLine(std::string_view line);
    void BeginBlock(std::string_view name);
    [[nodiscard]] const Block* FindBlock(std::string_view section) const;
    Block& FindOrAddBlock(std::string_view section);

    /// Part of a line in the code page.
    [[nodiscard]] std::string ToCodepage(std::string_view text) const;
    /// The reverse.
    [[nodiscard]] std::string ToLine(std::string_view in1252) const;

    std::string m_byteOrderMark;
    std::optional<ByteOrder> m_utf16;
    /// In the order of the file.
    std::vector<Block> m_blocks;
    /// The index of the first block of each section, by its name in lower case.
    std::unordered_map<std::string, std::size_t> m_blockOfName;
};

}  // namespace tarvelin
