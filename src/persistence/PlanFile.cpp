// The format of plan files.
#include "persistence/PlanFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

#include "persistence/AtomicWrite.h"
#include "util/Nuetzliches.h"
#include "util/NumberText.h"
#include "util/Utf8.h"

namespace tarvelin {

namespace {

constexpr std::string_view kSettings = "Einstellungen";
constexpr std::string_view kBuildList = "Bauliste";
constexpr std::string_view kSleepWindows = "Schlafzeiten";
constexpr std::string_view kItemCount = "ItemCount";

constexpr std::int64_t kMaxSleepWindows = 9999;

/// "Item_007".
std::string RowKey(std::string_view name, std::size_t n) {
    constexpr int kDigits = 3;
    return std::string(name) + PadIntegerDigits(std::to_string(n), kDigits);
}

/// Settings that hold an input as typed, in the order in which they are written and read. TempMax
/// isn't among them, as reading it sets TempMin too.
struct TextKey {
    std::string_view Key;
    std::string StartParameters::*text;
};

constexpr std::array<TextKey, 5> kDateKeys{{
    {"UniStartZeitTag", &StartParameters::UniStartZeitTag},
    {"UniStartZeitMonat", &StartParameters::UniStartZeitMonat},
    {"UniStartZeitJahr", &StartParameters::UniStartZeitJahr},
    {"UniStartZeitStunden", &StartParameters::UniStartZeitStunden},
    {"UniStartZeitMinuten", &StartParameters::UniStartZeitMinuten},
}};

/// A value from any file for a message: on one line and not too long.
std::string Readable(std::string_view value) {
    constexpr std::size_t kMax = 60;
    std::string text(value.substr(0, value.find_first_of('\0')));
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto character = static_cast<unsigned char>(text[i]);
        // C1 control characters are C2 80 to C2 9F in UTF-8.
        const bool isC1 = i > 0 && text[i - 1] == '\xC2' && character >= 0x80 && character < 0xA0;
        if (character < ' ' || character == 0x7F || isC1) {
            text[i] = '?';
            text[i - (isC1 ? 1 : 0)] = '?';
        }
    }
    if (text.size() > kMax) {
        std::size_t end = kMax;
        while (IsContinuation(text[end])) {
            --end;
        }
        text.resize(end);
        text += "...";
    }
    return text;
}

/// Each step returns whether all its values were usable.
class PlanReader {
  public:
    PlanReader(const IniFile& profile, Plan& plan, const RunConditions& conditions)
        : m_profile(profile), m_plan(plan), m_conditions(conditions) {}

    bool Read() { return ReadSettings() && ReadSleepTable() && ReadBuildList(); }

    /// Why the reading stopped, for the user.
    [[nodiscard]] const std::string& Obstacle() const { return m_obstacle; }

  private:
    bool ReadSettings() {
        StartParameters& parameters = m_plan.parameters;
        parameters.Speedfaktor_X2 = m_profile.ReadINI(kSettings, "Speedfaktor_X2", "0") == "1";
        const auto klickPuffer = ReadNumberFromZero(kSettings, "KlickPuffer", kMaxKlickPuffer);
        if (!klickPuffer) {
            return false;
        }
        parameters.KlickPuffer = static_cast<int>(*klickPuffer);
        for (const TextKey& textKey : kDateKeys) {
            parameters.*textKey.text = m_profile.ReadINI(kSettings, textKey.Key, "");
        }
        ChangeTempMax(parameters, m_profile.ReadINI(kSettings, "TempMax", ""));
        const auto showDesc = ParseNumber(m_profile.ReadINI(kSettings, "ShowDesc", ""));
        m_plan.ShowDesc = showDesc ? *showDesc != 0 : m_plan.ShowDesc;
        return showDesc || Fail(kSettings, "ShowDesc", "ist keine Zahl");
    }

    bool ReadSleepTable() {
        m_plan.LV_Schlafzeiten.clear();
        const auto count = ReadNumberFromZero(kSleepWindows, kItemCount, kMaxSleepWindows);
        for (std::size_t n = 1; count && n <= static_cast<std::size_t>(*count); ++n) {
            m_plan.LV_Schlafzeiten.push_back(
                {m_profile.ReadINI(kSleepWindows, RowKey("Item_", n), ""),
                 m_profile.ReadINI(kSleepWindows, RowKey("SubItem_", n), "")});
        }
        return count.has_value();
    }

    bool ReadBuildList() {
        const auto count = ParseWholeNumber(m_profile.ReadINI(kBuildList, kItemCount, ""), 0,
                                            std::numeric_limits<std::int64_t>::max());
        const std::string expected =
            "ist keine Zahl von 0 bis " + std::to_string(OrderList::kMaxSize);
        if (!count) {
            return Fail(kBuildList, kItemCount, expected);
        }
        const auto rows = std::min(*count, std::int64_t{OrderList::kMaxSize});
        for (std::int64_t n = 1; n <= rows; ++n) {
            const auto key = RowKey("Item_", static_cast<std::size_t>(n));
            if (!m_plan.LV_Bauliste.Replay(m_profile.ReadINI(kBuildList, key, ""), m_conditions)) {
                return Fail(kBuildList, key, "ist kein Code der Bauliste");
            }
        }
        return *count == rows || Fail(kBuildList, kItemCount, expected);
    }

    std::optional<std::int64_t> ReadNumberFromZero(std::string_view section, std::string_view key,
                                                   std::int64_t until) {
        const auto number = ParseWholeNumber(m_profile.ReadINI(section, key, ""), 0, until);
        if (!number) {
            Fail(section, key, "ist keine Zahl von 0 bis " + std::to_string(until));
        }
        return number;
    }

    /// Notes the obstacle and returns false.
    bool Fail(std::string_view section, std::string_view key, const std::string& expected) {
        const auto line = m_profile.LineNumber(section, key);
        const std::string name(key);
        if (!line) {
            m_obstacle = "[" + std::string(section) + "], " + name + " fehlt";
            return false;
        }
        const std::string value = Readable(m_profile.ReadINI(section, key, ""));
        m_obstacle = "Zeile " + std::to_string(*line) + ", " + name + ": " +
                     (value.empty() ? "der Wert fehlt" : value + " " + expected);
        return false;
    }

    const IniFile& m_profile;
    Plan& m_plan;
    const RunConditions& m_conditions;
    std::string m_obstacle;
};

}  // namespace

Message LoadErrorMessage() {
    return {.text = "Die Bauliste konnte nicht geladen werden...", .title = kBadInputTitle};
}

Message SaveErrorMessage() {
    return {.text = "Die Bauliste konnte nicht gespeichert werden...", .title = kBadInputTitle};
}

bool HasRows(const IniFile& profile) {
    return ParseWholeNumber(profile.ReadINI(kBuildList, kItemCount, ""), 1,
                            std::numeric_limits<std::int64_t>::max())
        .has_value();
}

void WritePlan(const Plan& plan, IniFile& profile) {
    const StartParameters& parameters = plan.parameters;
    profile.WriteINI(kSettings, "KlickPuffer", std::to_string(parameters.KlickPuffer));
    for (const TextKey& textKey : kDateKeys) {
        profile.WriteINI(kSettings, textKey.Key, parameters.*textKey.text);
    }
    profile.WriteINI(kSettings, "TempMax", parameters.TempMax);
    profile.WriteINI(kSettings, "ShowDesc", plan.ShowDesc ? "1" : "0");
    profile.WriteINI(kSettings, "Speedfaktor_X2", parameters.Speedfaktor_X2 ? "1" : "0");

    const auto& rows = plan.LV_Bauliste.Rows();
    profile.WriteINI(kBuildList, kItemCount, std::to_string(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        profile.WriteINI(kBuildList, RowKey("Item_", i + 1), rows[i].Tag);
    }

    profile.WriteINI(kSleepWindows, kItemCount, std::to_string(plan.LV_Schlafzeiten.size()));
    for (std::size_t i = 0; i < plan.LV_Schlafzeiten.size(); ++i) {
        profile.WriteINI(kSleepWindows, RowKey("Item_", i + 1), plan.LV_Schlafzeiten[i].Startzeit);
        profile.WriteINI(kSleepWindows, RowKey("SubItem_", i + 1), plan.LV_Schlafzeiten[i].Endzeit);
    }
}

bool SaveBauliste(const std::filesystem::path& File, const Plan& plan, const FileSystem& system) {
    auto profile = IniFile::LoadOrEmpty(File, system);
    if (!profile) {
        return false;
    }
    WritePlan(plan, *profile);
    return WriteFileAtomically(File, profile->Bytes(), system);
}

bool ReadPlan(const IniFile& profile, Plan& plan, const RunConditions& conditions,
              MessageSink& messages) {
    plan.LV_Bauliste.Clear();
    const bool usable = PlanReader(profile, plan, conditions).Read();
    if (!usable) {
        messages.Show(LoadErrorMessage());
    }
    return usable;
}

std::string LoadObstacle(const IniFile& profile) {
    Plan plan;
    const RunConditions conditions;
    PlanReader reader(profile, plan, conditions);
    return reader.Read() ? "" : reader.Obstacle();
}

std::string LoadObstacle(const std::filesystem::path& File, const FileSystem& system) {
    if (const auto profile = IniFile::Load(File, system)) {
        return LoadObstacle(*profile);
    }
    switch (system.KindOf(File).value_or(FileSystem::Kind::RegularFile)) {
        case FileSystem::Kind::Nothing:
            return "diese Datei gibt es nicht";
        case FileSystem::Kind::Folder:
            return "das ist ein Ordner, keine Datei";
        case FileSystem::Kind::Other:
            return "das ist keine Datei";
        case FileSystem::Kind::RegularFile:
            break;
    }
    return "diese Datei ist größer als 16 MiB, oder du darfst sie nicht lesen";
}

}  // namespace tarvelin
