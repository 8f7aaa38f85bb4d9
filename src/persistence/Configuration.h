// What the program keeps between two starts beside plans: `config.cfg`.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "persistence/FileSystem.h"
#include "util/Integers.h"

namespace tarvelin {

/// A key of the configuration; one that is missing reads as its default.
struct Konfigurationskey {
    std::string_view Section;
    std::string_view Key;
    std::string_view Standard;
};

/// Each read and each write goes to the file, so an edit by hand takes effect at the next read.
class Konfiguration {
  public:
    // clang-format off
    static constexpr Konfigurationskey kBaulistenwecker   {"Soundsettings", "Baulistenwecker",    "0"};
    static constexpr Konfigurationskey kSchlafzeitenwecker{"Soundsettings", "Schlafzeitenwecker", "0"};
    /// No file has the name of the default, which stands for ours.
    static constexpr Konfigurationskey kAlertsound        {"SoundSettings", "Alertsound",         "*"};
    static constexpr Konfigurationskey kMode              {"Skinsettings",  "Mode",               "1"};
    static constexpr Konfigurationskey kPath              {"Skinsettings",  "Path",               "~"};
    static constexpr Konfigurationskey kWebPath           {"Skinsettings",  "WebPath",            "http://"};
    static constexpr Konfigurationskey kFirststart        {"Settings",      "Firststart",         "1"};
    static constexpr Konfigurationskey kRecover           {"StartSettings", "Recover",            "1"};
    static constexpr Konfigurationskey kAlwaysDoSo        {"StartSettings", "AlwaysDoSo",         "0"};
    static constexpr Konfigurationskey kItemCount         {"Bauliste",      "ItemCount",          ""};
    /// Place of the frame and size of what is in it, in pixels; whether it fills the screen.
    static constexpr Konfigurationskey kWerkbankLinks     {"Werkbank",      "Links",              ""};
    static constexpr Konfigurationskey kWerkbankOben      {"Werkbank",      "Oben",               ""};
    static constexpr Konfigurationskey kWerkbankBreite    {"Werkbank",      "Breite",             ""};
    static constexpr Konfigurationskey kWerkbankHoehe     {"Werkbank",      "Hoehe",              ""};
    static constexpr Konfigurationskey kWerkbankGross     {"Werkbank",      "Gross",              "0"};
    // clang-format on

    using Werte = std::vector<std::pair<Konfigurationskey, std::string>>;

    explicit Konfiguration(std::filesystem::path programmordner,
                           const Dateisystem& system = Platte());

    [[nodiscard]] std::string Lies(const Konfigurationskey& key) const;
    /// "1" is on, any other text off.
    [[nodiscard]] bool IstAn(const Konfigurationskey& key) const;
    /// The kind of skin, from 0 to 255: 1 standard, 2 local, 3 web. A text that is no such number
    /// counts as 1.
    [[nodiscard]] Byte Skinmodus() const;
    /// The sound of the alarms; only the user enters another one than ours. A path that isn't an
    /// absolute one of the platform is meant from the program's folder.
    [[nodiscard]] std::filesystem::path Alertsound() const;

    /// Writes keys, all of them in one step. False, with nothing changed, if that fails.
    [[nodiscard]] bool Schreibe(const Werte& werte) const;

  private:
    std::filesystem::path m_programmordner;
    std::filesystem::path m_datei;
    const Dateisystem& m_system;
};

/// What a start does about the last plan, from the user's former answers.
enum class Wiederherstellung { Nicht, Fragen, Ungefragt };

[[nodiscard]] Wiederherstellung EntscheideWiederherstellung(const Konfiguration& konfiguration);

}  // namespace tarvelin
