// Profile files: reading, writing, replacing.
#include "TestSupport.h"
#include "persistence/AtomicWrite.h"

namespace tarvelin {
namespace {

struct Lesefall {
    const char* Was;
    std::string Bytes;
    std::string Wert;
};

TEST(Profil, LiestWieDiePlattform) {
    const std::string lang255(255, 'x');
    const std::vector<Lesefall> faelle{
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
        {"255 Bytes", "[A]\nK=" + lang255, lang255},
        {"256 Bytes", "[A]\nK=" + lang255 + "y", lang255},
        {"NUL", std::string("[A]\nK=v\0w", 10), "v"},
        {"Umlaut", "[A]\nK=\xE4\x80", "ä€"},
        {"leere Datei", "", "Standard"},
        {"nur Klammer", "[", "Standard"},
    };
    for (const Lesefall& fall : faelle) {
        EXPECT_EQ(IniFile(fall.Bytes).ReadINI("A", "K", "Standard"), fall.Wert) << fall.Was;
    }
    std::string umlaute;
    for (int i = 0; i < 300; ++i) {
        umlaute += "ä";
    }
    EXPECT_EQ(IniFile("").ReadINI("A", "K", umlaute), umlaute.substr(0, 510));
}

struct Schreibfall {
    const char* Was;
    std::string Vorher;
    std::string Nachher;
};

TEST(Profil, SchreibtUndLaesstAllesAndereStehen) {
    const std::vector<Schreibfall> faelle{
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
    for (const Schreibfall& fall : faelle) {
        IniFile profil(fall.Vorher);
        EXPECT_EQ(profil.Bytes(), fall.Vorher) << fall.Was;
        profil.WriteINI("A", "K", "v");
        EXPECT_EQ(profil.Bytes(), fall.Nachher) << fall.Was;
        EXPECT_EQ(profil.ReadINI("a", "k", ""), "v") << fall.Was;
        // The same key again changes no length, and what is written is what is read anew.
        profil.WriteINI("A", "K", "ä漢");
        EXPECT_EQ(IniFile(profil.Bytes()).ReadINI("A", "K", ""), "ä?") << fall.Was;
    }
}

struct Utf16fall {
    const char* Was;
    std::u16string Vorher;
    std::string Wert;
    std::u16string Nachher;
};

TEST(Profil, HaeltUtf16MitJedemZeichen) {
    // clang-format off
    const std::vector<Utf16fall> faelle{
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
    for (const Utf16fall& fall : faelle) {
        for (const bool hochVorn : {false, true}) {
            SCOPED_TRACE(std::string(fall.Was) + (hochVorn ? ", BE" : ", LE"));
            const std::string vorher = InUtf16(fall.Vorher, hochVorn);
            IniFile profil(vorher + "x");  // half a unit, which goes
            EXPECT_EQ(profil.Bytes(), vorher);
            EXPECT_EQ(profil.ReadINI("Ä漢", "kö", "Standard"), fall.Wert);
            profil.WriteINI("Ä漢", "Kö", "ü漢");
            EXPECT_EQ(profil.Bytes(), InUtf16(fall.Nachher, hochVorn));
            EXPECT_EQ(profil.ReadINI("Ä?", "Kö", ""), "ü?");
        }
    }
}

TEST(Dateiersatz, ErsetztGanzOderGarNicht) {
    using std::filesystem::perms;
    const Ordner ordner;
    const auto datei = ordner / "plan.tvf";
    SchreibeDatei(datei, "alt");
    const perms rechte = perms::owner_read | perms::owner_write | perms::group_read;
    std::filesystem::permissions(datei, rechte);
    ASSERT_TRUE(WriteFileAtomically(datei, "neu"));
    EXPECT_EQ(LiesDatei(datei), "neu");
    EXPECT_FALSE(WriteFileAtomically(ordner / "fehlt" / "plan.tvf", "x"));
    EXPECT_FALSE(WriteFileAtomically("", "x"));
    EXPECT_EQ(ordner.Eintraege(), 1U);
    if (kWindows) {
        return;
    }
    EXPECT_EQ(std::filesystem::status(datei).permissions(), rechte);
    std::filesystem::create_symlink(datei, ordner / "zeiger");
    ASSERT_TRUE(WriteFileAtomically(ordner / "zeiger", "neuer"));
    EXPECT_TRUE(std::filesystem::is_symlink(ordner / "zeiger"));
    EXPECT_EQ(LiesDatei(datei), "neuer");
    std::filesystem::permissions(datei, perms::owner_read);
    // Nothing is forbidden to root.
    const bool darf = NativeFileSystem().IsWritable(datei);
    EXPECT_EQ(WriteFileAtomically(datei, "neu"), darf);
    EXPECT_EQ(LiesDatei(datei), darf ? "neu" : "neuer");
    EXPECT_EQ(ordner.Eintraege(), 2U);
}

TEST(Profil, WeistZuGrossesUndFremdesAb) {
    const Ordner ordner;
    std::filesystem::create_directory(ordner / "verzeichnis");
    EXPECT_FALSE(IniFile::Load(ordner / "verzeichnis"));
    EXPECT_FALSE(IniFile::Load(ordner / "fehlt"));
    EXPECT_FALSE(IniFile::Load("/dev/zero"));
    EXPECT_TRUE(IniFile::LoadOrEmpty(ordner / "fehlt"));
    SchreibeDatei(ordner / "gross", std::string(IniFile::kMaxBytes, 'x'));
    EXPECT_TRUE(IniFile::Load(ordner / "gross"));
    SchreibeDatei(ordner / "gross", std::string(IniFile::kMaxBytes + 1, 'x'));
    EXPECT_FALSE(IniFile::LoadOrEmpty(ordner / "gross"));
}

}  // namespace
}  // namespace tarvelin
