// What the window reaches outside: handed in, so that a test can take the place of the world.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "util/Datumzeit.h"
#include "util/Meldung.h"

namespace tarvelin {

/// A modal question with the buttons "Ja" and "Nein".
struct Frage {
    std::string Text;
    /// Empty where a question has no title of its own.
    std::string Titel;
    Meldungssymbol Symbol = Meldungssymbol::Ohne;
};

/// The modal boxes of the window.
class Dialoge : public Meldungsausgabe {
  public:
    /// Whether the user answered "Ja". Closing the box is a "Nein".
    [[nodiscard]] virtual bool Stelle(const Frage& frage) = 0;
};

struct Umgebung {
    Dialoge& Boxen;
    /// The wall clock of the machine, in its local time.
    std::function<Zeitpunkt()> Jetzt;
    /// Where `img`, `mfx` and `saves` lie.
    std::filesystem::path Programmordner;
};

}  // namespace tarvelin
