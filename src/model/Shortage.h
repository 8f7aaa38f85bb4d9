// Why an order couldn't be given earlier.
#pragma once

#include <cstdint>
#include <string>

namespace tarvelin {

/// What the stocks lacked, kept as figures; the text is made when it is read.
struct Shortage {
    enum class Kind : std::uint8_t { Unstated, None, Metall, Kristall, Deuterium };

    Kind kind = Kind::None;
    /// What the stock lacked, plus 1.
    double missingAmount = 0;

    /// "Keine Verzögerung wegen der Ressourcen!", or "Es fehlten: " with the amount and the
    /// resource; empty without a statement.
    [[nodiscard]] std::string Text() const;

    /// Takes over the figures one by one: right behind a change, a copy of the whole would have to
    /// wait for it.
    void Assign(const Shortage& other) {
        kind = other.kind;
        missingAmount = other.missingAmount;
    }

    friend bool operator==(const Shortage&, const Shortage&) = default;
};

}  // namespace tarvelin
