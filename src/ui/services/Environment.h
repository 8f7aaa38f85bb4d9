// Everything outside the program that the windows use, as interfaces that tests can replace.
#pragma once

#include <QGuiApplication>
#include <QPalette>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "document/Prompts.h"
#include "persistence/FileSystem.h"
#include "persistence/ProgramFolder.h"
#include "util/DateTime.h"

namespace tarvelin {

/// Modal boxes, and dialogs that ask for files.
class Dialogs : public Prompts {
  public:
    enum class Purpose { Load, Save, Picture, Calendar };
    /// Lets the user choose a file, starting in `folder`; empty if he cancels. For plans no suffix
    /// is added and an existing file isn't asked about. Pictures and calendars without a suffix get
    /// that of the chosen format.
    [[nodiscard]] virtual std::filesystem::path AskForFile(Purpose purpose,
                                                           const std::filesystem::path& folder) = 0;

    /// Closes all open boxes as their close buttons do. None opens after that.
    virtual void CloseAll() = 0;
};

/// Fetches files by HTTP.
class Fetcher {
  public:
    Fetcher() = default;
    Fetcher(const Fetcher&) = delete;
    Fetcher& operator=(const Fetcher&) = delete;
    virtual ~Fetcher() = default;

    /// The bytes at an address; nothing if the fetch fails or is incomplete. Blocks until the end;
    /// meanwhile events are processed, but clicks and keys are ignored.
    [[nodiscard]] virtual std::optional<std::string> Fetch(const std::string& address) = 0;

    /// The same between two fetches.
    virtual void ProcessEvents() = 0;

    /// Makes a running fetch fail.
    virtual void Abort() = 0;
};

class Sound {
  public:
    Sound() = default;
    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;
    virtual ~Sound() = default;

    /// Returns at once. Cuts off a sound that is still playing. Beeps if the file can't be played.
    virtual void Play(const std::filesystem::path& file) = 0;
};

struct Environment {
    Dialogs& dialogs;
    Fetcher& fetcher;
    Sound& sound;
    /// The wall clock, in local time.
    std::function<DateTime()> now;
    /// Opens an address in the browser.
    std::function<void(const std::string&)> openPage;
    /// Where `img`, `mfx`, `saves` and `config.cfg` lie.
    std::filesystem::path programFolder;
    /// For plans and configuration.
    const FileSystem& files = NativeFileSystem();
    /// When it changes every window gets a `QEvent::ThemeChange`.
    std::function<QPalette()> desktopPalette = [] { return QGuiApplication::palette(); };
    /// The plan to open at the start instead of the last one; may be empty.
    std::filesystem::path planArgument = {};
    /// Shown at the start.
    std::optional<Message> startNotice = std::nullopt;

    /// Starts in the folder of the plans.
    [[nodiscard]] std::filesystem::path AskForFile(Dialogs::Purpose purpose) const {
        return dialogs.AskForFile(purpose, PlanFolder(programFolder, files));
    }
};

}  // namespace tarvelin
