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

/// A row of `LV_Bauzeiten`. Its cells are worked out from figures when they are read.
class Bauzeit {
  public:
    /// The row of an item: its text and behind that, if it isn't 0, the level or number that the
    /// order reaches.
    Bauzeit(Zeitpunkt zeit, std::string_view name, Long nummer, const Verzoegerung& grund)
        : m_zeit(zeit), m_name(name), m_nummer(nummer), m_grund(grund) {}

    /// The row of a change of the production factors of metal, crystal and deuterium, in tenths.
    Bauzeit(Zeitpunkt zeit, const std::array<Byte, 3>& faktoren)
        : m_zeit(zeit), m_faktoren(faktoren), m_grund{.Grund = Verzoegerung::Art::OhneAngabe} {}

    /// Short name of the weekday.
    [[nodiscard]] std::string Wochentag() const { return std::string(WochentagKurz(m_zeit)); }
    /// "hh:mm:ss".
    [[nodiscard]] std::string Uhrzeit() const { return Uhrzeittext(m_zeit); }
    /// "Metallmine: 1", or "80% 100% 50%".
    [[nodiscard]] std::string theText() const;
    /// Full weekday, date and time; behind them " | " and the reason, if it has more than one
    /// character.
    [[nodiscard]] std::string Tag() const;

    [[nodiscard]] Zeitpunkt Zeit() const { return m_zeit; }
    [[nodiscard]] const Verzoegerung& Grund() const { return m_grund; }

  private:
    Zeitpunkt m_zeit;
    std::string_view m_name{};
    Long m_nummer = 0;
    std::array<Byte, 3> m_faktoren{};
    Verzoegerung m_grund;
};

/// `LV_Bauzeiten`: rows in the order of the starts, never sorted.
using Bauzeiten = std::vector<Bauzeit>;

}  // namespace tarvelin
