// The order of the operations is part of each result.
#include "model/UpgradeTime.h"

namespace tarvelin {

double Gebaeudedauer(const Kosten& preis, const Spielstand& stand,
                     const Startbedingungen& bedingungen) {
    constexpr double kRohstoffeJeStunde = 2500;
    return (1.0 / bedingungen.Speedfaktor) *
           ((preis[Rohstoff::Kristall] + preis[Rohstoff::Metall]) / kRohstoffeJeStunde) *
           (1.0 / (1 + stand.Stufen[ItemId::Robo])) * kSekundenJeStunde;
}

double Deuteriumminendauer(const Kosten& preis, const Spielstand& stand,
                           const Startbedingungen& bedingungen) {
    return HalfEvenLong(Gebaeudedauer(preis, stand, bedingungen));
}

double Einheitendauer(const Kosten& preis, const Spielstand& stand,
                      const Startbedingungen& bedingungen) {
    constexpr double kRohstoffeJeStunde = 5000;
    return (1.0 / bedingungen.Speedfaktor) *
           ((preis[Rohstoff::Kristall] + preis[Rohstoff::Metall]) / kRohstoffeJeStunde) *
           (2.0 / (1 + stand.Stufen[ItemId::Werft])) * kSekundenJeStunde;
}

// The divisor is 1000 times the lab's level plus 1, not 1000 times (level plus 1).
double Forschungsdauer(const Kosten& preis, const Spielstand& stand,
                       const Startbedingungen& bedingungen) {
    const Long divisor = 1000 * stand.Stufen[ItemId::Folab] + 1;
    return ((1.0 / bedingungen.Speedfaktor) *
            (preis[Rohstoff::Kristall] + preis[Rohstoff::Metall])) /
           divisor * kSekundenJeStunde;
}

}  // namespace tarvelin
