// The settings that outlast a session, in `config.cfg`.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "persistence/FileSystem.h"
#include "util/Integers.h"

namespace tarvelin {

/// A missing key reads as its default.
struct ConfigKey {
    std::string_view Section;
    std::string_view Key;
    std::string_view Default;
};

/// Every read and write goes to the file, so an edit by hand takes effect at the next read.
class Configuration {
  public:
    // clang-format off
    static constexpr ConfigKey kBaulistenwecker   {"Soundsettings", "Baulistenwecker",    "0"};
    static constexpr ConfigKey kSchlafzeitenwecker{"Soundsettings", "Schlafzeitenwecker", "0"};
    /// The default stands for our own sound.
    static constexpr ConfigKey kAlertsound        {"SoundSettings", "Alertsound",         "*"};
    static constexpr ConfigKey kMode              {"Skinsettings",  "Mode",               "1"};
    static constexpr ConfigKey kPath              {"Skinsettings",  "Path",               "~"};
    static constexpr ConfigKey kWebPath           {"Skinsettings",  "WebPath",            "http://"};
    static constexpr ConfigKey kFirststart        {"Settings",      "Firststart",         "1"};
    static constexpr ConfigKey kRecover           {"StartSettings", "Recover",            "1"};
    static constexpr ConfigKey kAlwaysDoSo        {"StartSettings", "AlwaysDoSo",         "0"};
    static constexpr ConfigKey kItemCount         {"Bauliste",      "ItemCount",          ""};
    /// Position of the frame and size of the content, in pixels.
    static constexpr ConfigKey kWorkbenchLeft     {"Werkbank",      "Links",              ""};
    static constexpr ConfigKey kWorkbenchTop      {"Werkbank",      "Oben",               ""};
    static constexpr ConfigKey kWorkbenchWidth    {"Werkbank",      "Breite",             ""};
    static constexpr ConfigKey kWorkbenchHeight   {"Werkbank",      "Hoehe",              ""};
    static constexpr ConfigKey kWorkbenchMaximized{"Werkbank",      "Gross",              "0"};
    /// Columns of the list that aren't shown, by their captions.
    static constexpr ConfigKey kWorkbenchHidden   {"Werkbank",      "Ausgeblendet",       ""};
    /// The plans that were opened last, the latest first.
    static constexpr std::array<ConfigKey, 5> kRecentFiles{{
        {"Werkbank", "Zuletzt_1", ""}, {"Werkbank", "Zuletzt_2", ""}, {"Werkbank", "Zuletzt_3", ""},
        {"Werkbank", "Zuletzt_4", ""}, {"Werkbank", "Zuletzt_5", ""}}};
    // clang-format on

    using Values = std::vector<std::pair<ConfigKey, std::string>>;

    explicit Configuration(std::filesystem::path programFolder,
                           const FileSystem& system = NativeFileSystem());

    [[nodiscard]] std::string Read(const ConfigKey& key) const;
    /// "1" is on, any other text off.
    [[nodiscard]] bool IsOn(const ConfigKey& key) const;
    /// 1 standard, 2 local, 3 web; other numbers up to 255 as they are. Anything else reads as 1.
    [[nodiscard]] Byte SkinMode() const;
    /// The sound of the alarms. A path that isn't absolute on this platform is relative to the
    /// program's folder.
    [[nodiscard]] std::filesystem::path Alertsound() const;

    /// Writes all keys in one step. False, with nothing changed, if that fails.
    bool Write(const Values& values) const;

  private:
    std::filesystem::path m_programFolder;
    std::filesystem::path m_file;
    const FileSystem& m_system;
};

/// What to do with the last plan at a start.
enum class Recovery { Never, Ask, Always };

/// From the user's earlier answers.
[[nodiscard]] Recovery DecideRecovery(const Configuration& configuration);

}  // namespace tarvelin
