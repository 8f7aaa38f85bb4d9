// The run's timetable, `LV_Eventhandler`: the finish of each order under way and the start of the
// one order that waits.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "model/SimTime.h"

namespace tarvelin {

/// The rows' order is that of their moments; at one moment finish rows come before the start row,
/// and finish rows in the order in which they were entered. Rows name orders by their places in the
/// list.
class EventTabelle {
  public:
    struct Zeile {
        SimTime Zeit;
        std::uint16_t Order = 0;
        bool IstStart = false;
    };

    /// Enters the start row; none waits yet.
    void SetStart(std::size_t order) {
        m_startzeit = SimTime();
        m_wartender = static_cast<std::uint16_t>(order);
        m_wartetEiner = true;
    }
    [[nodiscard]] bool NoStartPending() const { return !m_wartetEiner; }
    /// The place of the order that waits.
    [[nodiscard]] std::size_t Wartender() const { return m_wartender; }
    /// Gives the start row that waits another moment.
    void SetStartzeit(SimTime zeit) { m_startzeit = zeit; }

    /// Enters a finish row.
    void SetFinish(SimTime zeit, std::size_t order);

    [[nodiscard]] bool HatFinishVor(SimTime zeit) const {
        return m_zahl > 0 && m_finishs[m_zahl - 1].Zeit < zeit;
    }

    [[nodiscard]] bool IstLeer() const { return NoStartPending() && m_zahl == 0; }

    /// Takes out the earliest row. There is one.
    Zeile NimmErste();

  private:
    /// All that a run ever has in use: one finish for each queue, as a queue's next order can't
    /// start before its finish, and the finishes of production rows. The next event carries those
    /// out, unless an order without a source of deuterium starts a second before; each queue can
    /// bring one such order.
    static constexpr std::size_t kFinishzeilen = 8;

    SimTime m_startzeit;
    std::uint16_t m_wartender = 0;
    bool m_wartetEiner = false;
    std::size_t m_zahl = 0;
    /// The earliest stands at the end.
    std::array<Zeile, kFinishzeilen> m_finishs{};
};

}  // namespace tarvelin
