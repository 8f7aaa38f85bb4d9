// Who watches a run.
#pragma once

#include <cstddef>
#include <cstdint>

#include "model/GameState.h"
#include "model/SimTime.h"
#include "model/Wait.h"
#include "plan/Order.h"

namespace tarvelin {

/// An order is given.
struct Startereignis {
    /// Of the list, from 0.
    std::size_t Zeile = 0;
    Order Order;
    /// The level or number that an item reaches; 0 for a production row.
    Byte Nummer = 0;
    SimTime Start;
    /// A production row finishes as it starts.
    SimTime Finish;
    /// What the stocks lacked when the start was last timed.
    Shortage Mangel;
    /// What held it back last; `None` if it waited for nothing but the row before it.
    Delay Grund;
    /// It starts on the value of a closed gate, as nothing was left that could open it.
    bool TorZu = false;
    /// When it could have started without the sleep windows; the last moment there is if none held
    /// it back.
    SimTime Wach{};

    friend bool operator==(const Startereignis&, const Startereignis&) = default;
};

/// Where an order is met that no rule knows.
enum class Unbekanntes : std::uint8_t { Start, Wartezeit };

/// Is told a run as figures. The state is that behind the event, before the next balance. Each of
/// these does nothing unless it is overridden.
class Laufbeobachter {
  public:
    Laufbeobachter() = default;
    Laufbeobachter(const Laufbeobachter&) = delete;
    Laufbeobachter& operator=(const Laufbeobachter&) = delete;
    virtual ~Laufbeobachter() = default;

    virtual void Start(const Startereignis& /*ereignis*/) {}
    virtual void Finish(const Order& /*order*/) {}
    /// A start has left a stock below 0.
    virtual void Schulden(const GameState& /*stand*/) {}
    virtual void Unbekannt(Unbekanntes /*was*/) {}
    /// A step found nothing to do.
    virtual void Piepton() {}
    /// A step is over, and the balance struck.
    virtual void NachSchritt(const GameState& /*stand*/) {}
};

}  // namespace tarvelin
