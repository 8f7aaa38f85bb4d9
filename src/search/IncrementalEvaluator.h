// Plays lists that differ from the one before in a part only.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "search/Score.h"
#include "search/SearchTask.h"
#include "simulation/Simulation.h"
#include "simulation/Sittings.h"

namespace tarvelin {

/// Keeps a copy of the run before each row of a list, so that another list that begins alike is
/// played from its first other row on.
class Probelauf {
  public:
    /// The task must outlive it.
    explicit Probelauf(const Suchaufgabe& aufgabe);

    /// Plays a list of which the first `gleich` orders are those of the list that was taken over
    /// last. Nothing if the list doesn't end: if an order starts in debt or on the value of a
    /// closed gate, or one that isn't played yet before its time; nothing as well as soon as the
    /// clock passes `grenze`.
    [[nodiscard]] std::optional<Wertung> Spiele(std::span<const Order> orders, std::size_t gleich,
                                                Long grenze);

    /// The list that was played last is the one to begin with from now on. It has ended.
    void Uebernimm();

    /// How many orders of the list that was played last have started well.
    [[nodiscard]] std::size_t Gestartet() const { return m_gestartet; }

  private:
    struct Sitzungsstand {
        SittingCounter Gezaehlt;
        SimTime Wach;
    };
    struct Halt {
        Simulation Lauf;
        Sitzungsstand Sitzungen;
    };
    class Waechter;

    const Suchaufgabe* m_aufgabe;
    /// Two for each row: that of the list that was taken over, and that of the last one.
    std::vector<std::array<Halt, 2>> m_halte;
    std::vector<unsigned char> m_gueltig;
    std::size_t m_gleich = 0;
    std::size_t m_gestartet = 0;
};

}  // namespace tarvelin
