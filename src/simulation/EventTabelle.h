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

/// Five rows that exist for good; positions count from 0, the first row being the earliest after
/// the last `Sortiere`. Rows are kept as figures; the cells of the product's table are given as
/// texts on demand. The orders are rows of the build list, which must not change meanwhile.
class EventTabelle {
  public:
    static constexpr std::size_t kZeilen = 5;
    static constexpr std::size_t kSpalten = 5;
    static constexpr std::size_t kKeineZeile = kZeilen;

    /// The row to which a new start row goes, and that for a new finish row, if it is free.
    static constexpr std::size_t kStartzeile = 3;
    static constexpr std::size_t kFinishzeile = 4;

    [[nodiscard]] bool IstFrei(std::size_t zeile) const {
        return m_zeilen[zeile].Schluessel == kFrei;
    }
    /// Of a row in use.
    [[nodiscard]] Moment Zeit(std::size_t zeile) const {
        return Moment(static_cast<Long>(m_zeilen[zeile].Schluessel >> 1U));
    }
    [[nodiscard]] bool IstStart(std::size_t zeile) const {
        return !IstFrei(zeile) && (m_zeilen[zeile].Schluessel & 1U) != 0;
    }
    [[nodiscard]] const BaulistenZeile& Order(std::size_t zeile) const {
        return *m_zeilen[zeile].Order;
    }

    /// Writes a row: into its own one for new starts or finishes, or, if that is in use, into the
    /// first free one. A run never uses more than five rows. `zeit` is 0 or later.
    void SetEvent(Moment zeit, const BaulistenZeile& order, bool start);

    /// Gives a start row another moment; it keeps its place until the next `Sortiere`.
    void SetZeit(std::size_t zeile, Moment zeit) {
        m_zeilen[zeile].Schluessel = Schluessel(zeit, true);
    }

    void ClearEvent(std::size_t zeile) { m_zeilen[zeile] = Zeile(); }

    /// The start row, or `kKeineZeile`.
    [[nodiscard]] std::size_t SucheStart() const;
    [[nodiscard]] bool NoStartPending() const { return SucheStart() == kKeineZeile; }

    /// Ascending by moment, free rows last. At one moment finish rows come before start rows; rows
    /// still equal keep their order.
    void Sortiere();

    /// The text of a cell: "000000000105" or "NONE", queue letter, detail, "1" start or "0"
    /// finish, and for production rows the whole detail of the start row or "X".
    [[nodiscard]] std::string Zelle(std::size_t zeile, std::size_t spalte) const;

  private:
    static constexpr std::uint64_t kFrei = std::numeric_limits<std::uint64_t>::max();

    /// `Schluessel` is what rows are sorted by: the moment and, as its lowest bit, whether the row
    /// is a start.
    struct Zeile {
        std::uint64_t Schluessel = kFrei;
        const BaulistenZeile* Order = nullptr;
    };

    static constexpr std::uint64_t Schluessel(Moment zeit, bool start) {
        return (static_cast<std::uint64_t>(zeit.Sekunden()) << 1U) | (start ? 1U : 0U);
    }

    std::array<Zeile, kZeilen> m_zeilen;
};

}  // namespace tarvelin
