// What several tests share.
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

namespace tarvelin {

#ifdef _WIN32
inline constexpr bool kWindows = true;
#else
inline constexpr bool kWindows = false;
#endif

/// Keeps messages and counts beeps.
class Merker final : public MessageSink {
  public:
    void Show(const Message& meldung) override { Texte.push_back(meldung.text); }
    void Beep() override { ++Pieptoene; }

    std::vector<std::string> Texte;
    int Pieptoene = 0;
};

/// A new folder of its own, gone at the end of the test. Other runs of the tests share the place.
class Ordner {
  public:
    Ordner() {
        const std::filesystem::path ort = testing::TempDir();
        const std::string name =
            "tarvelin-test-" + std::to_string(NativeFileSystem().ProcessId()) + "-";
        int n = 0;
        do {
            m_pfad = ort / (name + std::to_string(++n));
        } while (!std::filesystem::create_directory(m_pfad));
    }
    Ordner(const Ordner&) = delete;
    Ordner& operator=(const Ordner&) = delete;
    ~Ordner() {
        std::error_code fehler;
        std::filesystem::remove_all(m_pfad, fehler);
    }

    std::filesystem::path operator/(std::string_view name) const { return m_pfad / name; }
    [[nodiscard]] std::size_t Eintraege() const {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(m_pfad), {}));
    }

  private:
    std::filesystem::path m_pfad;
};

inline std::string LiesDatei(const std::filesystem::path& datei) {
    std::ifstream strom(datei, std::ios::binary);
    return {std::istreambuf_iterator<char>(strom), {}};
}

inline void SchreibeDatei(const std::filesystem::path& datei, std::string_view bytes) {
    std::ofstream(datei, std::ios::binary) << bytes;
}

/// As a word of a command.
inline std::string InZeichen(const std::filesystem::path& pfad) {
    return "\"" + pfad.string() + "\"";
}

/// Runs a command in a folder by the platform's shell. Its exit code.
inline int FuehreAus(const Ordner& ordner, const std::string& befehl) {
    const std::string ganzer =
        (kWindows ? "cd /d " : "cd ") + InZeichen(ordner / "") + " && " + befehl;
    const int status = std::system(ganzer.c_str());
    // Where a shell speaks POSIX, the code stands in the second byte.
    return kWindows ? status : status >> 8;
}

/// A file in 16-bit units behind its mark, the low byte of each first or the high one.
inline std::string InUtf16(const std::u16string& text, bool hochVorn) {
    std::string bytes;
    for (const char16_t einheit : u'\xFEFF' + text) {
        const auto hoch = static_cast<char>(einheit >> 8U);
        const auto niedrig = static_cast<char>(einheit & 0xFFU);
        bytes += {hochVorn ? hoch : niedrig, hochVorn ? niedrig : hoch};
    }
    return bytes;
}

/// A plan of 18.11.2006 12:30 without a click buffer, its rows by `Tag`s parted by blanks.
inline Plan PlanAus(std::string_view tags, const RunConditions& bedingungen = {}) {
    Plan plan;
    plan.parameters.UniStartZeitTag = "18";
    plan.parameters.UniStartZeitMonat = "11";
    plan.parameters.UniStartZeitJahr = "2006";
    plan.parameters.KlickPuffer = 0;
    while (!tags.empty()) {
        const auto tag = tags.substr(0, tags.find(' '));
        EXPECT_TRUE(plan.LV_Bauliste.Replay(tag, bedingungen)) << tag;
        tags.remove_prefix(std::min(tag.size() + 1, tags.size()));
    }
    return plan;
}

/// A plan that was run, unless its inputs can't be used.
struct Probe {
    LastRun Gelaufen;
    Merker Meldungen;
    bool Gelungen = false;

    explicit Probe(const Plan& plan) {
        const auto bedingungen = ParseRunConditions(plan);
        if (const auto* const absage = std::get_if<Message>(&bedingungen)) {
            Meldungen.Show(*absage);
            return;
        }
        Gelaufen.ResetSimulation(std::get<RunConditions>(bedingungen));
        RunSimulation(plan.LV_Bauliste.Orders().All(), Gelaufen, Meldungen);
        Gelungen = true;
    }
};

}  // namespace tarvelin
