// Why an order couldn't be given earlier.
#pragma once

#include <cstdint>
#include <string>

namespace tarvelin {

/// What the stocks lacked, kept as figures; the text is made when it is read.
struct Verzoegerung {
    enum class Art : std::uint8_t { OhneAngabe, Keine, Metall, Kristall, Deuterium };

    Art Grund = Art::Keine;
    /// What the stock lacked, plus 1.
    double Fehlmenge = 0;

    /// "Keine Verzögerung wegen der Ressourcen!", or "Es fehlten: " with the amount and the
    /// resource; empty without a statement.
    [[nodiscard]] std::string Text() const;

    /// Takes over the figures one by one: right behind a change, a copy of the whole would have to
    /// wait for it.
    void Uebernimm(const Verzoegerung& andere) {
        Grund = andere.Grund;
        Fehlmenge = andere.Fehlmenge;
    }

    friend bool operator==(const Verzoegerung&, const Verzoegerung&) = default;
};

}  // namespace tarvelin
