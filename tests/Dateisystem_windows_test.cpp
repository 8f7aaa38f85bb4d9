// Saves where other programs hold files open, and paths of any length.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>

#include <thread>

#include "Hilfen.h"

namespace tarvelin {
namespace {

/// As a virus scanner or an editor holds a file: nobody may replace it.
class Halter {
  public:
    explicit Halter(const std::filesystem::path& datei)
        : m_griff(::CreateFileW(datei.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                OPEN_EXISTING, 0, nullptr)) {
        EXPECT_NE(m_griff, INVALID_HANDLE_VALUE);
    }
    Halter(const Halter&) = delete;
    Halter& operator=(const Halter&) = delete;
    ~Halter() { LassLos(); }

    void LassLos() {
        if (m_griff != INVALID_HANDLE_VALUE) {
            ::CloseHandle(std::exchange(m_griff, INVALID_HANDLE_VALUE));
        }
    }

  private:
    HANDLE m_griff;
};

TEST(DateisystemWindows, WartetAufDenDerEineDateiHaelt) {
    const Ordner ordner;
    const auto datei = ordner / "plan.tvf";
    ASSERT_TRUE(SaveBauliste(datei, PlanAus("GM")));
    const std::string alt = LiesDatei(datei);
    {
        const Halter immer(datei);
        EXPECT_FALSE(SaveBauliste(datei, PlanAus("GM GS")));
        EXPECT_EQ(LiesDatei(datei), alt);
        EXPECT_EQ(ordner.Eintraege(), 1U);
    }
    Halter kurz(datei);
    std::thread gleich([&] {
        constexpr DWORD kWeile = 150;
        ::Sleep(kWeile);
        kurz.LassLos();
    });
    EXPECT_TRUE(SaveBauliste(datei, PlanAus("GM GS")));
    gleich.join();
    EXPECT_NE(LiesDatei(datei), alt);
    EXPECT_EQ(ordner.Eintraege(), 1U);
}

TEST(DateisystemWindows, ZeigtSchlichteOrdner) {
    const Ordner ordner;
    struct Fall {
        const wchar_t* Name;
        DWORD Attribute;
    };
    for (const auto& [name, attribute] :
         {Fall{L"blau", 0}, Fall{L"versteckt", FILE_ATTRIBUTE_HIDDEN},
          Fall{L"system", FILE_ATTRIBUTE_SYSTEM},
          Fall{L"ohne Index", FILE_ATTRIBUTE_NOT_CONTENT_INDEXED}}) {
        const std::filesystem::path unter = (ordner / "") / name;
        std::filesystem::create_directory(unter);
        ASSERT_NE(::SetFileAttributesW(unter.c_str(), FILE_ATTRIBUTE_DIRECTORY | attribute), 0);
    }
    EXPECT_EQ(GetSubfolders(ordner / ""), (std::vector<std::string>{"blau", "ohne Index"}));
}

TEST(DateisystemWindows, KommtMitLangenPfadenZurecht) {
    const Ordner ordner;
    std::filesystem::path ort = ordner / "";
    std::wstring lang = LR"(\\?\)" + std::filesystem::absolute(ort).make_preferred().native();
    for (int i = 0; i < 6; ++i) {
        const std::wstring glied = L"Größe – 星のプラン " + std::wstring(50, L'x');
        lang += (lang.ends_with(L'\\') ? L"" : L"\\") + glied;
        ASSERT_TRUE(::CreateDirectoryW(lang.c_str(), nullptr)) << i;
        ort /= glied;
    }
    const auto datei = ort / "plan.tvf";
    ASSERT_GT(datei.native().size(), 300U);
    for (const char* const codes : {"GM", "GM GS"}) {
        ASSERT_TRUE(SaveBauliste(datei, PlanAus(codes)));
        const auto profil = Profil::Lade(datei);
        ASSERT_TRUE(profil);
        EXPECT_EQ(profil->Lies("Bauliste", "ItemCount", ""),
                  codes == std::string("GM") ? "1" : "2");
    }
    EXPECT_EQ(Platte().Sieh(ort / "fehlt.tvf"), Dateisystem::Art::Nichts);
    // What the tests clean up by knows no such paths.
    EXPECT_TRUE(Platte().Loesche(datei));
    for (; lang.size() > std::filesystem::absolute(ordner / "").native().size() + 5;
         lang.erase(lang.rfind(L'\\'))) {
        EXPECT_TRUE(::RemoveDirectoryW(lang.c_str()));
    }
}

}  // namespace
}  // namespace tarvelin
