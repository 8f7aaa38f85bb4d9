// The run's timetable, `LV_Eventhandler`: the finish of each order under way and the start of the
// one order that waits.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

#include "model/Moment.h"
#include "plan/Bauliste.h"

namespace tarvelin {

/// Five rows, which is all that a run ever has in use: the start row, one finish for each queue, as
/// a queue's next order can't start before its finish, and the finish of a production row, which
/// the next event carries out unless an order without a source of deuterium starts a second before.
/// Their order is that of their moments; at one moment finish rows come before the start row, and
/// finish rows in the order in which they were entered. Rows are kept as figures and not moved
/// about; the sorted table of the product is given as texts on demand. The orders are rows of the
/// build list, which must not change meanwhile.
class EventTabelle {
  public:
    static constexpr std::size_t kZeilen = 5;
    static constexpr std::size_t kSpalten = 5;

    /// Enters a row. `zeit` is 0 or later; no second start row is entered while one waits, nor a
    /// sixth row, which would be an error of the run (std::out_of_range).
    void SetEvent(Moment zeit, const BaulistenZeile& order, bool start);

    /// Whether no start row waits.
    [[nodiscard]] bool NoStartPending() const { return m_startzeile == kZeilen; }
    /// The order of the start row that waits.
    [[nodiscard]] const BaulistenZeile& Wartende() const { return *m_orders[m_startzeile]; }
    /// Gives the start row that waits another moment.
    void SetStartzeit(Moment zeit) { m_schluessel[m_startzeile] = Schluessel(zeit, kStart, 0); }

    /// The earliest row; a table without rows in use gives a free one.
    [[nodiscard]] std::size_t Erste() const {
        std::size_t erste = 0;
        std::uint64_t kleinster = m_schluessel[0];
        for (std::size_t zeile = 1; zeile < kZeilen; ++zeile) {
            if (m_schluessel[zeile] < kleinster) {
                kleinster = m_schluessel[zeile];
                erste = zeile;
            }
        }
        return erste;
    }
    [[nodiscard]] bool IstFrei(std::size_t zeile) const { return m_schluessel[zeile] == kFrei; }
    /// Of a row in use.
    [[nodiscard]] Moment Zeit(std::size_t zeile) const {
        return Moment(static_cast<Long>(m_schluessel[zeile] >> kZeitstelle));
    }
    [[nodiscard]] bool IstStart(std::size_t zeile) const { return zeile == m_startzeile; }
    [[nodiscard]] const BaulistenZeile& Order(std::size_t zeile) const { return *m_orders[zeile]; }

    void ClearEvent(std::size_t zeile);

    /// The text of a cell of the sorted table, both from 0: "000000000105" or "NONE", queue letter,
    /// detail, "1" start or "0" finish, and for production rows the whole detail of the start row
    /// or "X".
    [[nodiscard]] std::string Zelle(std::size_t rang, std::size_t spalte) const;

  private:
    static constexpr std::uint64_t kFrei = std::numeric_limits<std::uint64_t>::max();
    static constexpr std::uint64_t kStart = 1;
    static constexpr std::uint64_t kFinish = 0;
    static constexpr unsigned kZeitstelle = 33;
    static constexpr unsigned kArtstelle = 32;

    /// What rows are ordered by: moment, then kind, then number of entry.
    static constexpr std::uint64_t Schluessel(Moment zeit, std::uint64_t art,
                                              std::uint32_t nummer) {
        return (static_cast<std::uint64_t>(zeit.Sekunden()) << kZeitstelle) | (art << kArtstelle) |
               nummer;
    }

    std::array<std::uint64_t, kZeilen> m_schluessel{kFrei, kFrei, kFrei, kFrei, kFrei};
    std::array<const BaulistenZeile*, kZeilen> m_orders{};
    std::size_t m_startzeile = kZeilen;
    std::uint32_t m_naechsteNummer = 0;
};

}  // namespace tarvelin
