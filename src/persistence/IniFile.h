// A profile file in memory: sections of keys, as the platform's profile functions read and write
// them.
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

/// The bytes of one file, understood line by line. Section and key names match whole, ASCII letters
/// without regard to case; only the first section of a name and the first key of a name in it
/// count. Texts go in and out as UTF-8; the bytes are Windows-1252, with or without a mark of
/// UTF-8, or UTF-16 behind a mark of either byte order.
///
/// Whatever the bytes are, the platform hands out 8-bit text: what the code page doesn't have reads
/// as "?", in names too. Lines that aren't written keep it all the same. Half a unit at the end of
/// the file is dropped.
class IniFile {
  public:
    /// A larger file is no profile: the longest plan has less than 12 MiB in UTF-16.
    static constexpr std::size_t kMaxBytes = std::size_t{16} << 20U;

    explicit IniFile(std::string_view bytes);

    /// Nothing if the file isn't one, can't be read or is too large.
    [[nodiscard]] static std::optional<IniFile> Load(const std::filesystem::path& file,
                                                     const FileSystem& system = NativeFileSystem());

    /// The same, but a file that doesn't exist gives an empty profile.
    [[nodiscard]] static std::optional<IniFile> LoadOrEmpty(
        const std::filesystem::path& file, const FileSystem& system = NativeFileSystem());

    /// The value of a key, at most 255 characters of it and nothing from its first NUL on; the
    /// default, cut likewise, if the section or the key is missing. One pair of equal quotes around
    /// the whole value goes.
    [[nodiscard]] std::string ReadINI(std::string_view Section, std::string_view Key,
                                      std::string_view Default) const;

    /// The line of the file, from 1, in which `ReadINI` finds a key; nothing for one that is
    /// missing.
    [[nodiscard]] std::optional<std::size_t> LineNumber(std::string_view section,
                                                        std::string_view key) const;

    /// Sets a key to what stands in front of the value's first line end or NUL. A known one keeps
    /// its place and its spelling; a new one goes to the end of its section, a new section to the
    /// end of the file. Every other line keeps its bytes, but for an unended one that gets a line
    /// behind it.
    void WriteINI(std::string_view Section, std::string_view Key, std::string_view Value);

    [[nodiscard]] std::string Bytes() const;

  private:
    /// A run of lines: the first section of a name, or lines that no read reaches.
    struct Block {
        /// With their line ends, the section line first. As in the file, or as `FromUtf16` gives
        /// it.
        std::vector<std::string> lines;
        /// Where the first line of each key stands; the keys in small letters.
        std::unordered_map<std::string, std::size_t> lineOfKey;
        bool reachable = false;
    };

    void AddLine(std::string_view line);
    void BeginBlock(std::string_view name);
    [[nodiscard]] const Block* FindBlock(std::string_view section) const;
    Block& FindOrAddBlock(std::string_view section);

    /// What the code page makes of a piece of a line.
    [[nodiscard]] std::string ToCodepage(std::string_view text) const;
    /// A piece of a line out of characters of the code page.
    [[nodiscard]] std::string ToLine(std::string_view in1252) const;

    std::string m_byteOrderMark;
    std::optional<ByteOrder> m_utf16;
    /// In the order of the file.
    std::vector<Block> m_blocks;
    /// Which of them is the first of a name; the names in small letters.
    std::unordered_map<std::string, std::size_t> m_blockOfName;
};

}  // namespace tarvelin
