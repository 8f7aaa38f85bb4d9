// The rooms of the house: who may include whom, and that the build knows every source.
#include <map>
#include <set>
#include <sstream>

#include "Hilfen.h"

namespace tarvelin {
namespace {

const std::filesystem::path kWurzel = TARVELIN_QUELLEN;

/// From the ground up: a room includes itself and the rooms before it.
const std::vector<std::string> kRaeume{"util",        "model",   "plan", "simulation",
                                       "persistence", "console", "ui"};

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

std::ptrdiff_t Stockwerk(const std::filesystem::path& quelle) {
    return std::ranges::find(kRaeume, quelle.begin()->string()) - kRaeume.begin();
}

TEST(Struktur, PfeileZeigenNurNachUnten) {
    for (const auto& quelle : Quellen()) {
        const auto [eigene, fremde] = Includes(quelle);
        for (const std::string& ziel : eigene) {
            EXPECT_TRUE(std::filesystem::exists(kWurzel / "src" / ziel)) << quelle << " " << ziel;
            EXPECT_LE(Stockwerk(ziel), Stockwerk(quelle)) << quelle << " includes " << ziel;
        }
        // The core is plain C++: names of the standard library and POSIX alone.
        for (const std::string& kopf : fremde) {
            const bool kern = Stockwerk(quelle) < Stockwerk("console");
            EXPECT_FALSE(kern && (kopf.starts_with("Q") || kopf.find("nlohmann") == 0 ||
                                  kopf.find("CLI") == 0))
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
