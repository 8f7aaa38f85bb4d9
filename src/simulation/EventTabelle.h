// The run's timetable, `LV_Eventhandler`: the finish of each order under way and the start of the
// one order that waits.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "model/Moment.h"

namespace tarvelin {

/// The rows' order is that of their moments; at one moment finish rows come before the start row,
/// and finish rows in the order in which they were entered. Rows name orders by their places in the
/// list.
class EventTabelle {
  public:
    struct Zeile {
        Moment Zeit;
        std::uint16_t Order = 0;
        bool IstStart = false;
    };

    /// Enters the start row; none waits yet.
    void SetStart(std::size_t order) {
        m_start = {.Zeit = {}, .Order = static_cast<std::uint16_t>(order), .IstStart = true};
    }
    [[nodiscard]] bool NoStartPending() const { return !m_start.IstStart; }
    /// The place of the order that waits.
    [[nodiscard]] std::size_t Wartender() const { return m_start.Order; }
    /// Gives the start row that waits another moment.
    void SetStartzeit(Moment zeit) { m_start.Zeit = zeit; }

    /// Enters a finish row.
    void SetFinish(Moment zeit, std::size_t order);

    [[nodiscard]] bool IstLeer() const { return NoStartPending() && m_zahl == 0; }

    /// Takes out the earliest row. There is one.
    Zeile NimmErste();

  private:
    /// All that a run ever has in use: one finish for each queue, as a queue's next order can't
    /// start before its finish, and the finishes of production rows. The next event carries those
    /// out, unless an order without a source of deuterium starts a second before; each queue can
    /// bring one such order.
    static constexpr std::size_t kFinishzeilen = 8;

    Zeile m_start;
    std::size_t m_zahl = 0;
    /// The earliest stands at the end.
    std::array<Zeile, kFinishzeilen> m_finishs{};
};

}  // namespace tarvelin
