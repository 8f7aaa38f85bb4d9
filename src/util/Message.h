// What a message box of the program shows. Messages are made where the facts are known and shown
// at the edge.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarvelin {

/// The icon of a message box.
enum class Meldungssymbol : std::uint8_t { Ohne, Fehler, Frage, Warnung, Hinweis };

/// A modal message with one OK button.
struct Meldung {
    std::string Text;
    /// Empty where a message has no title of its own.
    std::string Titel;
    Meldungssymbol Symbol = Meldungssymbol::Fehler;

    friend bool operator==(const Meldung&, const Meldung&) = default;
};

/// The title that tells bad input.
inline constexpr const char* kAusnahmefehler = "Schwerer Ausnahmefehler 1337 !";

/// Who shows messages: the window by a box, the console on its error stream.
class Meldungsausgabe {
  public:
    Meldungsausgabe() = default;
    Meldungsausgabe(const Meldungsausgabe&) = delete;
    Meldungsausgabe& operator=(const Meldungsausgabe&) = delete;
    virtual ~Meldungsausgabe() = default;

    /// Returns when the user has seen the message.
    virtual void Zeige(const Meldung& meldung) = 0;

    /// One beep, for what needs no words.
    virtual void Piepton() = 0;
};

/// Keeps messages for later, and never beeps.
class Meldungsliste final : public Meldungsausgabe {
  public:
    /// `meldungen` must outlive it.
    explicit Meldungsliste(std::vector<Meldung>& meldungen) : m_meldungen(meldungen) {}

    void Zeige(const Meldung& meldung) override { m_meldungen.push_back(meldung); }
    void Piepton() override {}

  private:
    std::vector<Meldung>& m_meldungen;
};

}  // namespace tarvelin
