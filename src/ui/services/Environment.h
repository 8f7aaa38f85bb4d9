// What the window reaches outside: handed in, so that a test can take the place of the world.
#pragma once

#include <QGuiApplication>
#include <QPalette>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "persistence/FileSystem.h"
#include "persistence/ProgramFolder.h"
#include "util/DateTime.h"
#include "util/Message.h"

namespace tarvelin {

/// A modal question with the buttons "Ja" and "Nein".
struct Question {
    std::string text;
    /// Empty where a question has no title of its own.
    std::string title;
    MessageIcon icon = MessageIcon::None;
};

/// The modal boxes of the window.
class Dialogs : public MessageSink {
  public:
    /// As `Zeige`, with a check box by which the user wants no more of this kind. Whether he still
    /// wants them.
    [[nodiscard]] virtual bool ShowSuppressible(const Message& message) = 0;
    /// Whether the user answered "Ja". Closing the box is a "Nein".
    [[nodiscard]] virtual bool Ask(const Question& question) = 0;

    enum class Purpose { Load, Save, Picture, Calendar };
    /// A file of the user's choice, from `folder` on; empty if he chose none. Nothing is added to
    /// the name of a plan, and nothing is asked about one that is there already. Pictures and
    /// calendars get the ending of the chosen format.
    [[nodiscard]] virtual std::filesystem::path AskForFile(Purpose purpose,
                                                           const std::filesystem::path& folder) = 0;

    /// Closes what is open, which answers as its close button does, and opens nothing any more.
    virtual void CloseAll() = 0;
};

/// Fetches files by HTTP.
class Fetcher {
  public:
    Fetcher() = default;
    Fetcher(const Fetcher&) = delete;
    Fetcher& operator=(const Fetcher&) = delete;
    virtual ~Fetcher() = default;

    /// The bytes behind an address, or nothing if they didn't come whole and well. Returns at the
    /// end of the fetch; meanwhile the screen lives on, and clicks and keys go nowhere.
    [[nodiscard]] virtual std::optional<std::string> Fetch(const std::string& address) = 0;

    /// Lets the screen live between two fetches.
    virtual void ProcessEvents() = 0;

    /// Ends a fetch under way; it brings nothing.
    virtual void Abort() = 0;
};

/// Plays sounds.
class Sound {
  public:
    Sound() = default;
    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;
    virtual ~Sound() = default;

    /// Returns at once and cuts off a sound that still plays. A file that can't be played is
    /// answered with a beep.
    virtual void Play(const std::filesystem::path& file) = 0;
};

struct Environment {
    Dialogs& dialogs;
    Fetcher& fetcher;
    Sound& sound;
    /// The wall clock of the machine, in its local time.
    std::function<DateTime()> now;
    /// Opens an address in the user's web browser.
    std::function<void(const std::string&)> openPage;
    /// Where `img`, `mfx`, `saves` and `config.cfg` lie.
    std::filesystem::path programFolder;
    /// Through which plans and configuration are read and written.
    const FileSystem& files = NativeFileSystem();
    /// The colours of the desktop, light or dark. When they change, every window gets a
    /// `QEvent::ThemeChange`.
    std::function<QPalette()> desktopPalette = [] { return QGuiApplication::palette(); };
    /// The plan to open at the start in the place of the last one; empty for none.
    std::filesystem::path planArgument = {};
    /// What the user has to know from the start on.
    std::optional<Message> startNotice = std::nullopt;

    /// As that of the boxes, from where plans lie.
    [[nodiscard]] std::filesystem::path AskForFile(Dialogs::Purpose purpose) const {
        return dialogs.AskForFile(purpose, PlanFolder(programFolder, files));
    }
};

}  // namespace tarvelin
