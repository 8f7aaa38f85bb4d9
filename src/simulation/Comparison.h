// Two runs set beside each other, each counted from its own start.
#pragma once

#include <optional>
#include <vector>

#include "simulation/RunTrace.h"

namespace tarvelin {

/// What a run comes to.
struct Kennzahlen {
    /// Seconds.
    Long Dauer = 0;
    Long VerbauteRessourcen = 0;
    PerResource<FixedPoint> Vorrat{};
    int Sitzungen = 0;
    /// Seconds in which a queue has nothing to do.
    PerQueue<Long> Leerlauf{};

    static Kennzahlen Von(const Ablauf& ablauf);

    friend bool operator==(const Kennzahlen&, const Kennzahlen&) = default;
};

/// An order that one run starts at another moment than the other, or that only one of them has.
struct Vergleichszeile {
    Order Order;
    /// The level or number of an item; of a production row how manieth of its kind it is.
    int Nummer = 0;
    std::optional<SimTime> A;
    std::optional<SimTime> B;

    /// How many seconds it starts later in B; nothing if only one has it.
    [[nodiscard]] std::optional<Long> Unterschied() const {
        return A && B ? std::optional(*B - *A) : std::nullopt;
    }

    friend bool operator==(const Vergleichszeile&, const Vergleichszeile&) = default;
};

struct Vergleich {
    Kennzahlen A;
    Kennzahlen B;
    /// By the earlier of both starts.
    std::vector<Vergleichszeile> Unterschiede;
};

/// Orders are the same if item and level or number are, production rows if their factors and their
/// number among those with these factors are. With the runs exchanged A and B are.
[[nodiscard]] Vergleich Vergleiche(const Ablauf& a, const Ablauf& b);

}  // namespace tarvelin
