// Helpers that several tests share.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "model/ItemTable.h"
#include "persistence/PlanFile.h"
#include "simulation/ResultTexts.h"
#include "simulation/RunSimulation.h"
#include "simulation/RunTrace.h"

namespace tarvelin {

#ifdef _WIN32
inline constexpr bool kWindows = true;
#else
inline constexpr bool kWindows = false;
#endif

/// Records messages.
class MessageRecorder final : public MessageSink {
  public:
    void Show(const Message& message) override { texts.push_back(message.text); }
    void Beep() override {}

    std::vector<std::string> texts;
};

/// A new folder that is deleted with the object. Its name has the process id, as tests run in
/// parallel.
class TempFolder {
  public:
    TempFolder() {
        const std::filesystem::path parent = testing::TempDir();
        const std::string name =
            "tarvelin-test-" + std::to_string(NativeFileSystem().ProcessId()) + "-";
        int n = 0;
        do {
            m_path = parent / (name + std::to_string(++n));
        } while (!std::filesystem::create_directory(m_path));
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }

    std::filesystem::path operator/(std::string_view name) const { return m_path / name; }
    [[nodiscard]] std::size_t Entries() const {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(m_path), {}));
    }

  private:
    std::filesystem::path m_path;
};

inline std::string ReadFileToString(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void WriteFile(const std::filesystem::path& file, std::string_view bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

/// A path in quotes, as a word of a shell command.
inline std::string Quoted(const std::filesystem::path& path) {
    return "\"" + path.string() + "\"";
}

/// Runs a command in a folder by the platform's shell and returns its exit code.
inline int Execute(const TempFolder& folder, const std::string& command) {
    const std::string whole =
        (kWindows ? "cd /d " : "cd ") + Quoted(folder / "") + " && " + command;
    const int status = std::system(whole.c_str());
    // POSIX has the exit code in the second byte.
    return kWindows ? status : status >> 8;
}

/// A plan that starts on 18.11.2006 12:30 without a click buffer; its rows are `Tag`s separated by
/// blanks.
inline Plan PlanOf(std::string_view tags, const RunConditions& conditions = {}) {
    Plan plan;
    plan.parameters.UniStartZeitTag = "18";
    plan.parameters.UniStartZeitMonat = "11";
    plan.parameters.UniStartZeitJahr = "2006";
    plan.parameters.KlickPuffer = 0;
    while (!tags.empty()) {
        const auto tag = tags.substr(0, tags.find(' '));
        EXPECT_TRUE(plan.LV_Bauliste.Replay(tag, conditions)) << tag;
        tags.remove_prefix(std::min(tag.size() + 1, tags.size()));
    }
    return plan;
}

/// The recorded run of a plan with usable inputs.
inline RunTrace TraceRun(const Plan& plan) {
    return TraceRun(plan.LV_Bauliste.Orders().All(),
                    std::get<RunConditions>(ParseRunConditions(plan)));
}

}  // namespace tarvelin
