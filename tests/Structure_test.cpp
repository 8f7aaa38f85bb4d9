// The rooms of the house: who may include whom, and that the build knows every source.
#include <map>
#include <set>
#include <sstream>

#include "TestSupport.h"

namespace tarvelin {
namespace {

const std::filesystem::path kWurzel = TARVELIN_SOURCE_DIR;

/// The rooms of the house, and which others each may include. Whatever isn't told here is a
/// mistake.
const std::map<std::string, std::set<std::string>> kRaeume{
    {"util", {}},
    {"model", {"util"}},
    {"plan", {"util", "model"}},
    {"simulation", {"util", "model", "plan"}},
    {"search", {"util", "model", "plan", "simulation"}},
    {"persistence", {"util", "model", "plan", "simulation"}},
    {"console", {"util", "model", "plan", "simulation", "search", "persistence"}},
    {"ui/widgets", {"model", "plan"}},
    {"ui/services", {"util", "persistence", "ui/widgets"}},
    {"ui/workbench",
     {"util", "model", "plan", "simulation", "search", "persistence", "ui/widgets", "ui/services"}},
    {"ui/mainwindow",
     {"util", "model", "plan", "simulation", "persistence", "ui/widgets", "ui/services",
      "ui/workbench"}},
    {"ui", {"persistence", "ui/widgets", "ui/services", "ui/mainwindow"}},
};
/// The only file of a room that another room knows.
const std::map<std::string, std::string> kTueren{{"ui/workbench", "ui/workbench/Workbench.h"}};
/// What stands on C++ and the platform alone.
const std::set<std::string> kKern{"util", "model", "plan", "simulation", "search", "persistence"};

std::vector<std::filesystem::path> Quellen() {
    std::vector<std::filesystem::path> quellen;
    for (const auto& eintrag : std::filesystem::recursive_directory_iterator(kWurzel / "src")) {
        if (eintrag.path().extension() == ".h" || eintrag.path().extension() == ".cpp") {
            quellen.push_back(std::filesystem::relative(eintrag.path(), kWurzel / "src"));
        }
    }
    return quellen;
}

/// The files of ours that a source includes, and the others.
std::pair<std::vector<std::string>, std::vector<std::string>> Includes(
    const std::filesystem::path& quelle) {
    std::pair<std::vector<std::string>, std::vector<std::string>> includes;
    std::istringstream zeilen(LiesDatei(kWurzel / "src" / quelle));
    for (std::string zeile; std::getline(zeilen, zeile);) {
        if (zeile.starts_with("#include \"")) {
            includes.first.push_back(zeile.substr(10, zeile.find('"', 10) - 10));
        } else if (zeile.starts_with("#include <")) {
            includes.second.push_back(zeile.substr(10, zeile.find('>') - 10));
        }
    }
    return includes;
}

std::string Raum(const std::filesystem::path& quelle) {
    return quelle.parent_path().generic_string();
}

TEST(Struktur, JederPfeilIstErlaubt) {
    for (const auto& quelle : Quellen()) {
        const std::string raum = Raum(quelle);
        ASSERT_TRUE(kRaeume.contains(raum)) << quelle;
        const auto [eigene, fremde] = Includes(quelle);
        for (const std::string& ziel : eigene) {
            EXPECT_TRUE(std::filesystem::exists(kWurzel / "src" / ziel)) << quelle << " " << ziel;
            EXPECT_TRUE(Raum(ziel) == raum || kRaeume.at(raum).contains(Raum(ziel)))
                << quelle << " includes " << ziel;
            const auto tuer = kTueren.find(Raum(ziel));
            EXPECT_TRUE(tuer == kTueren.end() || Raum(ziel) == raum || tuer->second == ziel)
                << quelle << " passes by the door of " << ziel;
        }
        for (const std::string& kopf : fremde) {
            EXPECT_FALSE(
                kKern.contains(raum) &&
                (kopf.starts_with("Q") || kopf.starts_with("nlohmann") || kopf.starts_with("CLI")))
                << quelle << " includes " << kopf;
        }
    }
}

TEST(Struktur, KeinKreisZwischenDateien) {
    std::map<std::string, std::set<std::string>> pfeile;
    const auto stamm = [](std::filesystem::path p) { return p.replace_extension().string(); };
    for (const auto& quelle : Quellen()) {
        for (const std::string& ziel : Includes(quelle).first) {
            if (stamm(ziel) != stamm(quelle)) {
                pfeile[stamm(quelle)].insert(stamm(ziel));
            }
        }
    }
    // Takes files away that include nothing any more; what remains is a circle.
    for (bool weniger = true; weniger;) {
        std::set<std::string> offen;
        for (const auto& [quelle, ziele] : pfeile) {
            offen.insert(quelle);
        }
        weniger = std::erase_if(pfeile, [&](const auto& paar) {
                      return std::ranges::none_of(
                          paar.second, [&](const auto& ziel) { return offen.contains(ziel); });
                  }) > 0;
    }
    for (const auto& [quelle, ziele] : pfeile) {
        ADD_FAILURE() << quelle << " stands in a circle of includes or leads into one";
    }
}

TEST(Struktur, JedesGenannteBildLiegtBeiDenDaten) {
    std::set<std::string> daten;
    for (const auto& e : std::filesystem::recursive_directory_iterator(kWurzel / "data")) {
        daten.insert(e.path().filename().string());
    }
    std::size_t genannt = 0;
    for (const auto& quelle : Quellen()) {
        std::istringstream stuecke(LiesDatei(kWurzel / "src" / quelle));
        for (std::string stueck; std::getline(stuecke, stueck, '"');) {
            const std::string endung = std::filesystem::path(stueck).extension().string();
            if (std::set<std::string>{".gif", ".png", ".ico", ".wav"}.contains(endung) &&
                endung != stueck) {
                EXPECT_TRUE(daten.contains(stueck)) << quelle << " names " << stueck;
                ++genannt;
            }
        }
    }
    EXPECT_GT(genannt, 0U);
}

TEST(Struktur, DerBauKenntJedeQuelle) {
    for (const auto& [ordner, liste] :
         {std::pair("src", "src/CMakeLists.txt"), std::pair("tests", "tests/CMakeLists.txt"),
          std::pair("bench", "bench/CMakeLists.txt")}) {
        const std::string bau = LiesDatei(kWurzel / liste);
        for (const auto& e : std::filesystem::recursive_directory_iterator(kWurzel / ordner)) {
            if (e.path().extension() == ".cpp") {
                const auto name =
                    std::filesystem::relative(e.path(), kWurzel / ordner).generic_string();
                EXPECT_NE(bau.find(name), std::string::npos) << name;
            }
        }
    }
}

}  // namespace
}  // namespace tarvelin
