// Tests the structure of the source tree: includes between rooms, cycles, picture files, build
// lists.
#include <map>
#include <set>
#include <sstream>

#include "TestSupport.h"

namespace tarvelin {
namespace {

const std::filesystem::path kRoot = TARVELIN_SOURCE_DIR;

/// The rooms, and which others each may include; docs/ARCHITECTURE.md has the same table.
const std::map<std::string, std::set<std::string>> kRooms{
    {"util", {}},
    {"model", {"util"}},
    {"plan", {"util", "model"}},
    {"simulation", {"util", "model", "plan"}},
    {"search", {"util", "model", "plan", "simulation"}},
    {"persistence", {"util", "model", "plan"}},
    {"document", {"util", "model", "plan", "simulation", "persistence"}},
    {"export", {"util", "model", "plan", "simulation", "search", "persistence", "document"}},
    {"console",
     {"util", "model", "plan", "simulation", "search", "persistence", "document", "export"}},
    {"ui/widgets", {"model", "plan"}},
    {"ui/services", {"util", "persistence", "ui/widgets"}},
    {"ui/workbench",
     {"util", "model", "plan", "simulation", "search", "persistence", "document", "export",
      "ui/widgets", "ui/services"}},
    {"ui/mainwindow",
     {"util", "model", "plan", "simulation", "persistence", "document", "ui/widgets", "ui/services",
      "ui/workbench"}},
    {"ui", {"persistence", "ui/widgets", "ui/services", "ui/mainwindow"}},
};
/// Rooms of which others may include one file only.
const std::map<std::string, std::string> kDoors{{"ui/workbench", "ui/workbench/Workbench.h"}};
/// Rooms without third-party libraries.
const std::set<std::string> kCore{"util",   "model",       "plan",    "simulation",
                                  "search", "persistence", "document"};

std::vector<std::filesystem::path> Sources() {
    std::vector<std::filesystem::path> sources;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kRoot / "src")) {
        if (entry.path().extension() == ".h" || entry.path().extension() == ".cpp") {
            sources.push_back(std::filesystem::relative(entry.path(), kRoot / "src"));
        }
    }
    return sources;
}

/// The files that a source includes: our own, and others.
std::pair<std::vector<std::string>, std::vector<std::string>> Includes(
    const std::filesystem::path& source) {
    std::pair<std::vector<std::string>, std::vector<std::string>> includes;
    std::istringstream lines(ReadFileToString(kRoot / "src" / source));
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("#include \"")) {
            includes.first.push_back(line.substr(10, line.find('"', 10) - 10));
        } else if (line.starts_with("#include <")) {
            includes.second.push_back(line.substr(10, line.find('>') - 10));
        }
    }
    return includes;
}

std::string RoomOf(const std::filesystem::path& source) {
    return source.parent_path().generic_string();
}

TEST(Structure, EveryIncludeIsAllowed) {
    for (const auto& source : Sources()) {
        const std::string room = RoomOf(source);
        ASSERT_TRUE(kRooms.contains(room)) << source;
        const auto [own, others] = Includes(source);
        for (const std::string& target : own) {
            EXPECT_TRUE(std::filesystem::exists(kRoot / "src" / target)) << source << " " << target;
            EXPECT_TRUE(RoomOf(target) == room || kRooms.at(room).contains(RoomOf(target)))
                << source << " includes " << target;
            const auto door = kDoors.find(RoomOf(target));
            EXPECT_TRUE(door == kDoors.end() || RoomOf(target) == room || door->second == target)
                << source << " passes by the door of " << target;
        }
        for (const std::string& header : others) {
            EXPECT_FALSE(kCore.contains(room) &&
                         (header.starts_with("Q") || header.starts_with("nlohmann") ||
                          header.starts_with("CLI")))
                << source << " includes " << header;
        }
    }
}

TEST(Structure, IncludesFormNoCycle) {
    std::map<std::string, std::set<std::string>> includes;
    const auto stem = [](std::filesystem::path path) { return path.replace_extension().string(); };
    for (const auto& source : Sources()) {
        for (const std::string& target : Includes(source).first) {
            if (stem(target) != stem(source)) {
                includes[stem(source)].insert(stem(target));
            }
        }
    }
    // Removes files that include nothing any more; what remains is in a cycle or leads into one.
    for (bool fewer = true; fewer;) {
        std::set<std::string> open;
        for (const auto& [source, targets] : includes) {
            open.insert(source);
        }
        fewer = std::erase_if(includes, [&](const auto& pair) {
                    return std::ranges::none_of(
                        pair.second, [&](const auto& target) { return open.contains(target); });
                }) > 0;
    }
    for (const auto& [source, targets] : includes) {
        ADD_FAILURE() << source << " stands in a circle of includes or leads into one";
    }
}

TEST(Structure, EveryNamedPictureExists) {
    std::set<std::string> data;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kRoot / "data")) {
        data.insert(entry.path().filename().string());
    }
    std::size_t named = 0;
    for (const auto& source : Sources()) {
        std::istringstream pieces(ReadFileToString(kRoot / "src" / source));
        for (std::string piece; std::getline(pieces, piece, '"');) {
            const std::string suffix = std::filesystem::path(piece).extension().string();
            if (std::set<std::string>{".gif", ".png", ".ico", ".wav"}.contains(suffix) &&
                suffix != piece) {
                EXPECT_TRUE(data.contains(piece)) << source << " names " << piece;
                ++named;
            }
        }
    }
    EXPECT_GT(named, 0U);
}

TEST(Structure, TheBuildKnowsEverySource) {
    for (const auto& [folder, list] :
         {std::pair("src", "src/CMakeLists.txt"), std::pair("tests", "tests/CMakeLists.txt"),
          std::pair("bench", "bench/CMakeLists.txt")}) {
        const std::string buildList = ReadFileToString(kRoot / list);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(kRoot / folder)) {
            if (entry.path().extension() == ".cpp") {
                const auto name =
                    std::filesystem::relative(entry.path(), kRoot / folder).generic_string();
                EXPECT_NE(buildList.find(name), std::string::npos) << name;
            }
        }
    }
}

}  // namespace
}  // namespace tarvelin
