// Tests the structure of the source tree: what the rooms see of each other, cycles, picture files,
// build lists.
#include <map>
#include <set>
#include <sstream>

#include "TestSupport.h"

namespace tarvelin {
namespace {

const std::filesystem::path kRoot = TARVELIN_SOURCE_DIR;

/// What each node leads to.
using Graph = std::map<std::string, std::set<std::string>>;

/// The rooms, and what a file of each may see: the rooms named here and what their files may see.
/// docs/ARCHITECTURE.md has the same table.
const Graph kRooms{
    {"util", {}},
    {"model", {"util"}},
    {"plan", {"model"}},
    {"simulation", {"plan"}},
    {"search", {"simulation"}},
    {"persistence", {"plan"}},
    {"document", {"persistence", "simulation"}},
    {"export", {"document", "search"}},
    {"console", {"export"}},
    {"ui/widgets", {"plan"}},
    {"ui/services", {"ui/widgets", "document"}},
    {"ui/mainwindow", {"ui/services"}},
    {"ui/look", {"ui/services"}},
    {"ui/timeline", {"ui/look"}},
    {"ui/workbench", {"ui/timeline", "export"}},
    {"ui", {"ui/mainwindow", "ui/workbench"}},
};
/// Headers of libraries, by the beginning of their names, and the rooms that may include them.
const std::map<std::string, std::string> kLibraries{
    {"Q", "ui"}, {"curl/", "ui/services"}, {"nlohmann/", "export"}, {"CLI/", "console"}};

std::set<std::string> Sources() {
    std::set<std::string> sources;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kRoot / "src")) {
        if (entry.path().extension() == ".h" || entry.path().extension() == ".cpp") {
            sources.insert(std::filesystem::relative(entry.path(), kRoot / "src").generic_string());
        }
    }
    return sources;
}

/// The headers that a source includes: ours with a quotation mark as `opening`, else others.
std::set<std::string> Includes(const std::string& source, char opening) {
    const std::string begin = std::string("#include ") + opening;
    std::set<std::string> headers;
    std::istringstream lines(ReadFileToString(kRoot / "src" / source));
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(begin)) {
            headers.insert(line.substr(begin.size(), line.find_last_of("\">") - begin.size()));
        }
    }
    return headers;
}

Graph OwnIncludes() {
    Graph includes;
    for (const std::string& source : Sources()) {
        includes[source] = Includes(source, '"');
    }
    return includes;
}

/// All that a node leads to, in any number of steps.
std::set<std::string> Reached(const Graph& graph, const std::string& from) {
    std::set<std::string> reached;
    std::vector<std::string> open{from};
    while (!open.empty()) {
        const auto node = graph.find(open.back());
        open.pop_back();
        for (const std::string& target :
             node == graph.end() ? std::set<std::string>() : node->second) {
            if (reached.insert(target).second) {
                open.push_back(target);
            }
        }
    }
    return reached;
}

std::string RoomOf(const std::filesystem::path& source) {
    return source.parent_path().generic_string();
}

TEST(Structure, EveryFileSeesWhatItMay) {
    const Graph includes = OwnIncludes();
    for (const auto& [source, own] : includes) {
        const std::string room = RoomOf(source);
        ASSERT_TRUE(kRooms.contains(room)) << source;
        std::set<std::string> allowed = Reached(kRooms, room);
        allowed.insert(room);
        for (const std::string& target : Reached(includes, source)) {
            EXPECT_TRUE(includes.contains(target)) << source << " includes " << target;
            EXPECT_TRUE(allowed.contains(RoomOf(target))) << source << " sees " << target;
        }
        for (const std::string& header : Includes(source, '<')) {
            for (const auto& [begin, owner] : kLibraries) {
                EXPECT_TRUE(!header.starts_with(begin) || room.starts_with(owner))
                    << source << " includes " << header;
            }
        }
    }
}

TEST(Structure, IncludesFormNoCycle) {
    // A header and its source are one.
    const auto stem = [](std::filesystem::path path) {
        return path.replace_extension().generic_string();
    };
    Graph includes;
    for (const auto& [source, targets] : OwnIncludes()) {
        for (const std::string& target : targets) {
            if (stem(target) != stem(source)) {
                includes[stem(source)].insert(stem(target));
            }
        }
    }
    for (const auto& [source, targets] : includes) {
        EXPECT_FALSE(Reached(includes, source).contains(source)) << source << " includes itself";
    }
}

TEST(Structure, EveryNamedPictureExists) {
    std::set<std::string> data;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kRoot / "data")) {
        data.insert(entry.path().filename().string());
    }
    std::size_t named = 0;
    for (const std::string& source : Sources()) {
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
