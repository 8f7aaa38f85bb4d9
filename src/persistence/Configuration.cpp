// Reading and writing of the configuration file.
#include "persistence/Configuration.h"

#include <algorithm>

#include "persistence/AtomicWrite.h"
#include "persistence/IniFile.h"
#include "util/NumberText.h"
#include "util/Utf8.h"

namespace tarvelin {

namespace {

/// Resolves a path that the user wrote with either separator; never by the current directory.
std::filesystem::path FromFolder(const std::filesystem::path& folder, std::string text) {
    // Not every standard library takes "\\host\share" for absolute.
    const bool isUnc = std::filesystem::path::preferred_separator == '\\' &&
                       (text.starts_with("\\\\") || text.starts_with("//"));
    if (isUnc || PathFromUtf8(text).is_absolute()) {
        return PathFromUtf8(text);
    }
    std::ranges::replace(text, '\\', '/');
    // What root is left, a leading separator or a drive alone, isn't absolute: drop it.
    return folder / PathFromUtf8(text).relative_path();
}

}  // namespace

Configuration::Configuration(std::filesystem::path programFolder, const FileSystem& system)
    : m_programFolder(std::move(programFolder)),
      m_file(m_programFolder / "config.cfg"),
      m_system(system) {}

std::string Configuration::Read(const ConfigKey& key) const {
    // Not cached: the user may have edited the file.
    return IniFile::Load(m_file, m_system)
        .value_or(IniFile(""))
        .ReadINI(key.Section, key.Key, key.Default);
}

bool Configuration::IsOn(const ConfigKey& key) const {
    return Read(key) == "1";
}

Byte Configuration::SkinMode() const {
    constexpr std::int64_t kHighest = 255;
    return static_cast<Byte>(ParseWholeNumber(Read(kMode), 0, kHighest).value_or(1));
}

std::filesystem::path Configuration::Alertsound() const {
    const std::string file = Read(kAlertsound);
    return file == kAlertsound.Default ? m_programFolder / "mfx" / "alert.wav"
                                       : FromFolder(m_programFolder, file);
}

bool Configuration::Write(const Values& values) const {
    auto profile = IniFile::LoadOrEmpty(m_file, m_system);
    if (!profile) {
        return false;
    }
    for (const auto& [key, value] : values) {
        profile->WriteINI(key.Section, key.Key, value);
    }
    return WriteFileAtomically(m_file, profile->Bytes(), m_system);
}

Recovery DecideRecovery(const Configuration& configuration) {
    const std::string always = configuration.Read(Configuration::kAlwaysDoSo);
    if (always == "0") {
        return Recovery::Ask;
    }
    return always == "1" && configuration.IsOn(Configuration::kRecover) ? Recovery::Always
                                                                        : Recovery::Never;
}

}  // namespace tarvelin
