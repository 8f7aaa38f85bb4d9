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
struct Frage {
    std::string Text;
    /// Empty where a question has no title of its own.
    std::string Titel;
    MessageIcon Symbol = MessageIcon::None;
};

/// The modal boxes of the window.
class Dialoge : public MessageSink {
  public:
    /// As `Zeige`, with a check box by which the user wants no more of this kind. Whether he still
    /// wants them.
    [[nodiscard]] virtual bool ZeigeAbstellbar(const Message& meldung) = 0;
    /// Whether the user answered "Ja". Closing the box is a "Nein".
    [[nodiscard]] virtual bool Stelle(const Frage& frage) = 0;

    enum class Zweck { Laden, Speichern, Bild, Kalender };
    /// A file of the user's choice, from `ordner` on; empty if he chose none. Nothing is added to
    /// the name of a plan, and nothing is asked about one that is there already. Pictures and
    /// calendars get the ending of the chosen format.
    [[nodiscard]] virtual std::filesystem::path FragNachDatei(
        Zweck zweck, const std::filesystem::path& ordner) = 0;

    /// Closes what is open, which answers as its close button does, and opens nothing any more.
    virtual void Beende() = 0;
};

/// Fetches files by HTTP.
class Abruf {
  public:
    Abruf() = default;
    Abruf(const Abruf&) = delete;
    Abruf& operator=(const Abruf&) = delete;
    virtual ~Abruf() = default;

    /// The bytes behind an address, or nothing if they didn't come whole and well. Returns at the
    /// end of the fetch; meanwhile the screen lives on, and clicks and keys go nowhere.
    [[nodiscard]] virtual std::optional<std::string> Hole(const std::string& adresse) = 0;

    /// Lets the screen live between two fetches.
    virtual void Atme() = 0;

    /// Ends a fetch under way; it brings nothing.
    virtual void BrichAb() = 0;
};

/// Plays sounds.
class Klang {
  public:
    Klang() = default;
    Klang(const Klang&) = delete;
    Klang& operator=(const Klang&) = delete;
    virtual ~Klang() = default;

    /// Returns at once and cuts off a sound that still plays. A file that can't be played is
    /// answered with a beep.
    virtual void Spiele(const std::filesystem::path& datei) = 0;
};

struct Umgebung {
    Dialoge& Boxen;
    Abruf& Netz;
    Klang& Ton;
    /// The wall clock of the machine, in its local time.
    std::function<DateTime()> Jetzt;
    /// Opens an address in the user's web browser.
    std::function<void(const std::string&)> OeffneSeite;
    /// Where `img`, `mfx`, `saves` and `config.cfg` lie.
    std::filesystem::path Programmordner;
    /// Through which plans and configuration are read and written.
    const FileSystem& Dateien = NativeFileSystem();
    /// The colours of the desktop, light or dark. When they change, every window gets a
    /// `QEvent::ThemeChange`.
    std::function<QPalette()> Desktopfarben = [] { return QGuiApplication::palette(); };
    /// The plan to open at the start in the place of the last one; empty for none.
    std::filesystem::path Planargument = {};
    /// What the user has to know from the start on.
    std::optional<Message> Starthinweis = std::nullopt;

    /// As that of the boxes, from where plans lie.
    [[nodiscard]] std::filesystem::path FragNachDatei(Dialoge::Zweck zweck) const {
        return Boxen.FragNachDatei(zweck, PlanFolder(Programmordner, Dateien));
    }
};

}  // namespace tarvelin
