// What the stocks lacked for an order.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "model/Resource.h"

namespace tarvelin {

/// Kept as figures; the text is made when it is asked for.
struct Shortage {
    /// `Unstated` where nobody looked at the stocks.
    enum class Kind : std::uint8_t { Unstated, None, Metall, Kristall, Deuterium };

    Kind kind = Kind::None;
    /// The missing amount plus 1.
    double missingAmount = 0;

    /// Nothing where none is short.
    [[nodiscard]] std::optional<Resource> ShortResource() const;
    /// "Keine Verzögerung wegen der Ressourcen!", or "Es fehlten: " with the amount and the
    /// resource; empty for `Unstated`.
    [[nodiscard]] std::string Text() const;
    /// "1.067 Kristall"; empty where nothing is short.
    [[nodiscard]] std::string AmountText() const;

    /// Copies field by field: copying a whole struct whose fields were just written stalls on store
    /// forwarding.
    void Assign(const Shortage& other) {
        kind = other.kind;
        missingAmount = other.missingAmount;
    }

    friend bool operator==(const Shortage&, const Shortage&) = default;
};

}  // namespace tarvelin
