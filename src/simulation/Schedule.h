// The table of build times: when each order has to be given, and why not earlier.
#pragma once

#include <string>
#include <vector>

#include "model/RunConditions.h"
#include "simulation/RunObserver.h"
#include "util/DateTime.h"

namespace tarvelin {

/// A row of `LV_Bauzeiten`. Its cells are worked out from figures when they are read.
struct Bauzeit {
    Order Order{};
    /// The level or number that an item reaches; 0 for a production row.
    Byte Nummer = 0;
    DateTime Start{};
    DateTime Finish{};
    /// What the stocks lacked when the start was last timed.
    Shortage Mangel{};
    /// What held the order back last.
    Delay Grund{};

    /// Short name of the weekday.
    [[nodiscard]] std::string Wochentag() const { return std::string(WeekdayShort(Start)); }
    /// "hh:mm:ss".
    [[nodiscard]] std::string Uhrzeit() const { return TimeOfDayText(Start); }
    /// "Metallmine: 1", or "80% 100% 50%".
    [[nodiscard]] std::string theText() const;
    /// Full weekday, date and time; behind them " | " and the reason, if it has one.
    [[nodiscard]] std::string Tag() const;
    /// The reason in words. Rows of the research lab and production rows have none.
    [[nodiscard]] std::string VerzoegerungsGrund() const;
};

/// `LV_Bauzeiten`: rows in the order of the starts, never sorted.
using Bauzeiten = std::vector<Bauzeit>;

/// Adds a row at each start.
class Bauzeitenschreiber final : public Laufbeobachter {
  public:
    /// Both must outlive it.
    Bauzeitenschreiber(const RunConditions& bedingungen, Bauzeiten& zeilen)
        : m_bedingungen(bedingungen), m_zeilen(zeilen) {}

    void Start(const Startereignis& ereignis) override;

  private:
    const RunConditions& m_bedingungen;
    Bauzeiten& m_zeilen;
};

}  // namespace tarvelin
