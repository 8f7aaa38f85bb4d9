// Matching of orders.
#include "simulation/Comparison.h"

#include <algorithm>
#include <map>
#include <string>
#include <tuple>
#include <utility>

#include "simulation/Sittings.h"

namespace tarvelin {

namespace {

/// What makes two orders the same: the code or the factors, and the number.
using Schluessel = std::pair<std::string, int>;

void Trage(const Ablauf& ablauf, std::optional<SimTime> Vergleichszeile::*seite,
           std::map<Schluessel, Vergleichszeile>& zeilen) {
    std::map<std::string, int> produktionen;
    for (const Startereignis& start : ablauf.Starts) {
        const std::string tag = start.Order.Tag();
        const int nummer =
            start.Order.kind == Order::Kind::Item ? start.Nummer : ++produktionen[tag];
        Vergleichszeile& zeile = zeilen[{tag, nummer}];
        zeile.Order = start.Order;
        zeile.Nummer = nummer;
        zeile.*seite = start.Start;
    }
}

/// The same whichever run is which.
std::tuple<SimTime, SimTime, std::string, int> Rang(const Vergleichszeile& zeile) {
    const SimTime a = zeile.A ? *zeile.A : *zeile.B;
    const SimTime b = zeile.B ? *zeile.B : *zeile.A;
    return {std::min(a, b), std::max(a, b), zeile.Order.Tag(), zeile.Nummer};
}

}  // namespace

Kennzahlen Kennzahlen::Von(const Ablauf& ablauf) {
    Kennzahlen zahlen{.Dauer = ablauf.Dauer().Seconds(),
                      .VerbauteRessourcen = ablauf.Ende.VerbauteRessourcen,
                      .Vorrat = ablauf.Ende.stock};
    Sitzungszaehler sitzungen;
    PerQueue<std::int64_t> beschaeftigt{};
    for (const Startereignis& start : ablauf.Starts) {
        sitzungen.Nimm(start.Start);
        beschaeftigt[start.Order.queue] += start.Finish - start.Start;
    }
    zahlen.Sitzungen = sitzungen.Zahl;
    for (std::size_t i = 0; i < beschaeftigt.size(); ++i) {
        zahlen.Leerlauf[i] = Saturate<Long>(zahlen.Dauer - beschaeftigt[i]);
    }
    return zahlen;
}

Vergleich Vergleiche(const Ablauf& a, const Ablauf& b) {
    std::map<Schluessel, Vergleichszeile> zeilen;
    Trage(a, &Vergleichszeile::A, zeilen);
    Trage(b, &Vergleichszeile::B, zeilen);
    Vergleich vergleich{.A = Kennzahlen::Von(a), .B = Kennzahlen::Von(b), .Unterschiede = {}};
    for (const auto& [schluessel, zeile] : zeilen) {
        if (zeile.A != zeile.B) {
            vergleich.Unterschiede.push_back(zeile);
        }
    }
    std::ranges::sort(vergleich.Unterschiede, {}, Rang);
    return vergleich;
}

}  // namespace tarvelin
