// The table of build times: when each order has to be given, and why not earlier.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "util/Datumzeit.h"

namespace tarvelin {

/// Why an order couldn't be given earlier, kept as figures; the text is made when it is read.
struct Verzoegerung {
    enum class Art : std::uint8_t { OhneAngabe, Keine, Metall, Kristall, Deuterium };

    Art Grund = Art::Keine;
    /// What the stock lacked, plus 1.
    double Fehlmenge = 0;

    /// "Keine Verzögerung wegen der Ressourcen!", or "Es fehlten: " with the amount and the
    /// resource; empty without a statement.
    [[nodiscard]] std::string Text() const;
};

/// What the third column of a build-time row says, kept as figures.
struct Bauzeittext {
    /// The text of an item, and behind it, if not 0, the level or number that the order reaches.
    std::string_view Name{};
    Long Nummer = 0;
    /// Without a name: the production factors of metal, crystal and deuterium in tenths.
    std::array<Byte, 3> Faktoren{};

    [[nodiscard]] std::string Text() const;
};

/// A row of `LV_Bauzeiten`. Its cells are worked out from figures when they are read.
class Bauzeit {
  public:
    Bauzeit(Zeitpunkt moment, const Bauzeittext& text, const Verzoegerung& grund)
        : m_moment(moment), m_text(text), m_grund(grund) {}

    /// Short name of the weekday.
    [[nodiscard]] std::string Wochentag() const { return std::string(WochentagKurz(m_moment)); }
    /// "hh:mm:ss".
    [[nodiscard]] std::string Uhrzeit() const { return Uhrzeittext(m_moment); }
    [[nodiscard]] std::string theText() const { return m_text.Text(); }
    /// Full weekday, date and time; behind them " | " and the reason, if it has more than one
    /// character.
    [[nodiscard]] std::string Tag() const;

    [[nodiscard]] Zeitpunkt Zeit() const { return m_moment; }
    [[nodiscard]] const Verzoegerung& Grund() const { return m_grund; }

  private:
    Zeitpunkt m_moment;
    Bauzeittext m_text;
    Verzoegerung m_grund;
};

/// `LV_Bauzeiten`: rows in the order of the starts, never sorted.
using Bauzeiten = std::vector<Bauzeit>;

}  // namespace tarvelin
