// Tests profile files: reading, writing, replacing.
#include <tuple>

#include "TestSupport.h"
#include "persistence/AtomicWrite.h"
#include "util/Codepage1252.h"

namespace tarvelin {
namespace {

/// What a case is about, the bytes before, and what comes of them.
using Case = std::tuple<const char*, std::string, std::string>;

TEST(IniFile, ReadsAsThePlatformDoes) {
    const std::string long255(255, 'x');
    const std::vector<Case> cases{
        {"einfach", "[A]\r\nK=v\r\n", "v"},
        {"LF und ohne Ende", "[A]\nK=v", "v"},
        {"CR", "[A]\rK=v\rL=w", "v"},
        {"Marke", "\xEF\xBB\xBF[A]\nK=v", "v"},
        {"Ränder", "\t [ \ta\v] Rest\r\n \fk \t= \v v w \t\r\n", "v w"},
        {"ohne Klammer", "[A\nK=v", "v"},
        {"Schreibung", "[a]\nk=v", "v"},
        {"Kommentar", "[A]\n;K=1\n ; K=2\nK=v", "v"},
        {"leer", "[A]\nK=\nK=v", ""},
        {"erster Schlüssel", "[A]\nK=v\nK=w", "v"},
        {"erster Abschnitt", "[A]\nX=1\n[B]\nK=b\n[A]\nK=w", "Standard"},
        {"ganzer Name", "[AA]\nK=1\n[A]\nKK=2\nK K=3", "Standard"},
        {"vor Abschnitt", "K=v\n[B]\n", "Standard"},
        {"erstes Gleich", "[A]\nK=a=b", "a=b"},
        {"ohne Gleich", "[A]\nK\nK=v", "v"},
        {"Anführung", "[A]\nK=\" v \"", " v "},
        {"Hochkomma", "[A]\nK='v'", "v"},
        {"gemischt", "[A]\nK=\"v'", "\"v'"},
        {"ein Zeichen", "[A]\nK=\"", "\""},
        {"doppelt", "[A]\nK=\"\"v\"\"", "\"v\""},
        {"255 Bytes", "[A]\nK=" + long255, long255},
        {"256 Bytes", "[A]\nK=" + long255 + "y", long255},
        {"NUL", std::string("[A]\nK=v\0w", 10), "v"},
        {"Umlaut", "[A]\nK=\xE4\x80", "ä€"},
        {"leere Datei", "", "Standard"},
        {"nur Klammer", "[", "Standard"},
    };
    for (const auto& [what, bytes, value] : cases) {
        EXPECT_EQ(IniFile(bytes).ReadINI("A", "K", "Standard"), value) << what;
    }
    const std::string umlauts = From1252(std::string(300, '\xE4'));
    EXPECT_EQ(IniFile("").ReadINI("A", "K", umlauts), umlauts.substr(0, 510));
}

TEST(IniFile, WritesAndKeepsEverythingElse) {
    const std::vector<Case> cases{
        {"leer", "", "[A]\r\nK=v\r\n"},
        {"nur Marke", "\xEF\xBB\xBF", "\xEF\xBB\xBF[A]\r\nK=v\r\n"},
        {"neuer Abschnitt", "[B]\nx=1", "[B]\nx=1\r\n[A]\r\nK=v\r\n"},
        {"neuer Schlüssel", "[A]\nx=1\n\n \t\n[B]\r\n", "[A]\nx=1\nK=v\r\n\n \t\n[B]\r\n"},
        {"hinter Unbeendeter", "[A]\nx=1", "[A]\nx=1\r\nK=v\r\n"},
        {"hinter Kommentar", "[a]\n;c\n", "[a]\n;c\nK=v\r\n"},
        {"vor Leerem am Ende", "[A]\n  ", "[A]\nK=v\r\n  "},
        {"alter Platz", "[A]\n \tk\t = alt\nx=1\n", "[A]\nk=v\r\nx=1\n"},
        {"erster von zweien", "[A]\rk=1\rK=2\r[A]\rK=3", "[A]\rk=v\r\nK=2\r[A]\rK=3"},
        {"fremde Zeilen", "Unsinn\n=\n[A\nK=\"x\"", "Unsinn\n=\n[A\nK=v\r\n"},
    };
    for (const auto& [what, before, after] : cases) {
        IniFile profile(before);
        EXPECT_EQ(profile.Bytes(), before) << what;
        profile.WriteINI("A", "K", "v");
        EXPECT_EQ(profile.Bytes(), after) << what;
        // Writing the key again reads back, with "?" for what the code page lacks.
        profile.WriteINI("A", "K", "ä漢");
        EXPECT_EQ(IniFile(profile.Bytes()).ReadINI("a", "k", ""), "ä?") << what;
    }
}

/// A file in UTF-16 with its byte order mark, big-endian if `highFirst`.
std::string ToUtf16Bytes(const std::u16string& text, bool highFirst) {
    std::string bytes;
    for (const char16_t unit : u'\xFEFF' + text) {
        const auto high = static_cast<char>(unit >> 8U);
        const auto low = static_cast<char>(unit & 0xFFU);
        bytes += {highFirst ? high : low, highFirst ? low : high};
    }
    return bytes;
}

TEST(IniFile, KeepsUtf16WithEveryCharacter) {
    // What a case is about, the text before, the value of the key, and the text after.
    using Utf16Case = std::tuple<const char*, std::u16string, std::string, std::u16string>;
    // clang-format off
    const std::vector<Utf16Case> cases{
        {"nur Marke", u"", "Standard", u"[Ä?]\r\nKö=ü?\r\n"},
        {"Umlaute", u"[Ä漢]\r\nKö=äß€\r\n", "äß€", u"[Ä漢]\r\nKö=ü?\r\n"},
        {"nicht in der Codepage", u"[Ä😀]\n[Ä?]\nKö=a漢b😀\n;漢", "a?b??", u"[Ä😀]\n[Ä?]\nKö=ü?\r\n;漢"},
        {"halbe Zeichen", u"\xDC00\n[Ä\xD800]\n\xD800=1\nKö=a\xD83D", "a?", u"\xDC00\n[Ä\xD800]\n\xD800=1\nKö=ü?\r\n"},
        {"Bytes eines Zeilenendes", u"[Ä?]\nKö=\x0A0D\x0D0A.", "??.", u"[Ä?]\nKö=ü?\r\n"},
        {"255 Zeichen", u"[Ä?]\nkö=" + std::u16string(255, u'漢') + u"x", std::string(255, '?'), u"[Ä?]\nkö=ü?\r\n"},
        {"NUL", u"[Ä?]\nL=1\r\n\r\nKö=v" + std::u16string(2, u'\0'), "v", u"[Ä?]\nL=1\r\n\r\nKö=ü?\r\n"},
        {"neue Zeile", u"[Ä?]\n\n;漢", "Standard", u"[Ä?]\n\n;漢\r\nKö=ü?\r\n"},
    };
    // clang-format on
    for (const auto& [what, before, value, after] : cases) {
        for (const bool highFirst : {false, true}) {
            SCOPED_TRACE(std::string(what) + (highFirst ? ", BE" : ", LE"));
            const std::string bytes = ToUtf16Bytes(before, highFirst);
            IniFile profile(bytes + "x");  // an incomplete code unit, which is dropped
            EXPECT_EQ(profile.Bytes(), bytes);
            EXPECT_EQ(profile.ReadINI("Ä漢", "kö", "Standard"), value);
            profile.WriteINI("Ä漢", "Kö", "ü漢");
            EXPECT_EQ(profile.Bytes(), ToUtf16Bytes(after, highFirst));
            EXPECT_EQ(profile.ReadINI("Ä?", "Kö", ""), "ü?");
        }
    }
}

TEST(AtomicWrite, ReplacesWhollyOrNotAtAll) {
    using std::filesystem::perms;
    const TempFolder folder;
    const auto file = folder / "plan.tvf";
    WriteFile(file, "alt");
    EXPECT_FALSE(WriteFileAtomically(folder / "", "x"));
    EXPECT_FALSE(WriteFileAtomically(folder / "fehlt" / "plan.tvf", "x"));
    EXPECT_FALSE(WriteFileAtomically("", "x"));
    EXPECT_EQ(folder.Entries(), 1U);
    if (kWindows) {
        return;
    }
    const perms permissions = perms::owner_read | perms::owner_write | perms::group_read;
    std::filesystem::permissions(file, permissions);
    std::filesystem::create_symlink(file, folder / "zeiger");
    ASSERT_TRUE(WriteFileAtomically(folder / "zeiger", "neuer"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "zeiger"));
    EXPECT_EQ(ReadFileToString(file), "neuer");
    EXPECT_EQ(std::filesystem::status(file).permissions(), permissions);
    std::filesystem::permissions(file, perms::owner_read);
    // Root may write in spite of the permissions.
    const bool allowed = NativeFileSystem().IsWritable(file);
    EXPECT_EQ(WriteFileAtomically(file, "neu"), allowed);
    EXPECT_EQ(ReadFileToString(file), allowed ? "neu" : "neuer");
    EXPECT_EQ(folder.Entries(), 2U);
}

TEST(IniFile, RefusesTooLargeAndForeignFiles) {
    const TempFolder folder;
    std::filesystem::create_directory(folder / "verzeichnis");
    EXPECT_FALSE(IniFile::Load(folder / "verzeichnis"));
    EXPECT_FALSE(IniFile::Load(folder / "fehlt"));
    EXPECT_FALSE(IniFile::Load("/dev/zero"));
    EXPECT_TRUE(IniFile::LoadOrEmpty(folder / "fehlt"));
    WriteFile(folder / "gross", std::string(IniFile::kMaxBytes, 'x'));
    EXPECT_TRUE(IniFile::Load(folder / "gross"));
    WriteFile(folder / "gross", std::string(IniFile::kMaxBytes + 1, 'x'));
    EXPECT_FALSE(IniFile::LoadOrEmpty(folder / "gross"));
}

}  // namespace
}  // namespace tarvelin
