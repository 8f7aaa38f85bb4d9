// The steps of the state.
#include "model/Transitions.h"

#include <algorithm>
#include <cstdint>

#include "model/Cost.h"
#include "model/Energy.h"
#include "model/Mines.h"

namespace tarvelin {

namespace {

/// What the mines yield, for all moments until the next balance.
void FrischeErtraegeAuf(Spielstand& stand, const Startbedingungen& bedingungen) {
    JedenRohstoff([&](Rohstoff r) {
        stand.ProStunde[r] = Minenertrag(r, stand.Stufen[kMinen[r]], stand.Minenfaktor[r],
                                         stand.ProdFaktor, bedingungen);
        stand.ProSekunde[r] = stand.ProStunde[r].ToDouble() / kSekundenJeStunde;
    });
}

/// What a rate yields: divided in floating point, half to even at the fourth decimal.
FixedPoint Ertrag(FixedPoint proStunde, Long sekunden) {
    constexpr std::uint64_t kStunde = 3600;
    constexpr std::uint64_t kSicher = kStunde << 38U;
    const FixedPoint stundenfach = proStunde * sekunden;
    // The floating point quotient is off by less than 3 parts in 2^53, here 0.0001 at most. Only at
    // a half, or for more than that, can this be seen; all else is told by whole numbers.
    const auto n = static_cast<std::uint64_t>(stundenfach.Raw());
    const std::uint64_t halbe = 2 * n + kStunde;
    const std::uint64_t ganze = halbe / (2 * kStunde);
    if (n < kSicher && halbe != ganze * (2 * kStunde)) [[likely]] {
        return FixedPoint::FromRaw(static_cast<std::int64_t>(ganze));
    }
    return FixedPoint::FromDouble(stundenfach.ToDouble() / kSekundenJeStunde);
}

}  // namespace

Spielstand Anfang(const Startbedingungen& bedingungen) {
    constexpr FixedPoint kStartvorrat = FixedPoint::FromWhole(500);
    Spielstand stand;
    stand.Vorrat = {{kStartvorrat, kStartvorrat, FixedPoint()}};
    FrischeErtraegeAuf(stand, bedingungen);
    return stand;
}

void BeginneSchritt(const Itemzeile& zeile, Spielstand& stand) {
    const Kosten& preis = Preis(zeile.Item, stand.Stufen[zeile.Item]);
    const JeRohstoff<FixedPoint>& abzug = Abzug(zeile.Item, stand.Stufen[zeile.Item]);
    stand.ImAusbau[zeile.Besonders.Bedient] = true;
    double verbaut = stand.VerbauteRessourcen;
    JedenRohstoff([&](Rohstoff r) {
        stand.Vorrat[r] = stand.Vorrat[r] - abzug[r];
        verbaut += preis[r];
    });
    stand.VerbauteRessourcen = HalfEvenLong(verbaut);
}

void BeendeSchritt(const Itemzeile& zeile, Spielstand& stand) {
    stand.ImAusbau[zeile.Besonders.Bedient] = false;
    stand.Stufen[zeile.Item] = Saturate<Byte>(stand.Stufen[zeile.Item] + 1);
    stand.BilanzVeraltet |= zeile.Besonders.Energie != Energierolle::Keine;
}

void SetzeMinenfaktoren(const Minenfaktoren& faktoren, Spielstand& stand) {
    stand.Minenfaktor = faktoren;
    stand.BilanzVeraltet = true;
}

void EnergieBilanz(Spielstand& stand, const Startbedingungen& bedingungen) {
    if (!stand.BilanzVeraltet) {
        return;
    }
    stand.BilanzVeraltet = false;
    double bedarf = 0;
    JedenRohstoff([&](Rohstoff r) {
        bedarf += Energiebedarf(r, stand.Stufen[kMinen[r]], stand.Minenfaktor[r]);
    });
    stand.EnergieVerbrauch = HalfEvenLong(bedarf);
    stand.EnergieProduktion =
        HalfEvenLong((Satellitenertrag(stand.Stufen[ItemId::Solsats], bedingungen.Temperatur) +
                      Kraftwerksertrag(stand.Stufen[ItemId::SKW]))
                         .ToDouble());
    constexpr FixedPoint kVoll = FixedPoint::FromWhole(1);
    stand.ProdFaktor =
        stand.EnergieVerbrauch == 0
            ? kVoll
            : std::min(kVoll, FixedPoint::FromDouble(static_cast<double>(stand.EnergieProduktion) /
                                                     stand.EnergieVerbrauch));
    FrischeErtraegeAuf(stand, bedingungen);
}

void VergeheZeit(Long sekunden, Spielstand& stand) {
    if (sekunden == 0) {
        return;
    }
    JedenRohstoff([&](Rohstoff r) {
        stand.Vorrat[r] = stand.Vorrat[r] + Ertrag(stand.ProStunde[r], sekunden);
    });
    stand.secsgone = stand.secsgone + sekunden;
}

}  // namespace tarvelin
