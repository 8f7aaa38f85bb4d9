// The steps of the state.
#include "model/Planet.h"

#include <algorithm>

#include "model/Energie.h"
#include "model/Kosten.h"
#include "model/Minen.h"

namespace tarvelin {

namespace {

/// What the mines yield, for all moments until the next balance.
void FrischeErtraegeAuf(Spielstand& stand, const Startbedingungen& bedingungen) {
    for (const Rohstoff r : kRohstoffe) {
        stand.ProStunde[r] = Minenertrag(r, stand.Stufen[kMinen[r]], stand.Minenfaktor[r],
                                         stand.ProdFaktor, bedingungen);
    }
}

}  // namespace

Spielstand Anfang(const Startbedingungen& bedingungen) {
    constexpr Festkomma kStartvorrat = Festkomma::AusGanzzahl(500);
    Spielstand stand;
    stand.Vorrat = {{kStartvorrat, kStartvorrat, Festkomma()}};
    FrischeErtraegeAuf(stand, bedingungen);
    return stand;
}

void BeginneSchritt(const Itemzeile& zeile, Spielstand& stand) {
    const Kosten& preis = Preis(zeile.Item, stand.Stufen[zeile.Item]);
    stand.ImAusbau[zeile.Besonders.Bedient] = true;
    double verbaut = stand.VerbauteRessourcen;
    for (const Rohstoff r : kRohstoffe) {
        stand.Vorrat[r] = stand.Vorrat[r] - Festkomma::AusDouble(preis[r]);
        verbaut += preis[r];
    }
    stand.VerbauteRessourcen = HalfEvenLong(verbaut);
}

void BeendeSchritt(const Itemzeile& zeile, Spielstand& stand) {
    stand.ImAusbau[zeile.Besonders.Bedient] = false;
    stand.Stufen[zeile.Item] = Saettige<Byte>(stand.Stufen[zeile.Item] + 1);
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
    for (const Rohstoff r : kRohstoffe) {
        bedarf += Energiebedarf(r, stand.Stufen[kMinen[r]], stand.Minenfaktor[r]);
    }
    stand.EnergieVerbrauch = HalfEvenLong(bedarf);
    stand.EnergieProduktion =
        HalfEvenLong((Satellitenertrag(stand.Stufen[ItemId::Solsats], bedingungen.Temperatur) +
                      Kraftwerksertrag(stand.Stufen[ItemId::SKW]))
                         .AlsDouble());
    constexpr Festkomma kVoll = Festkomma::AusGanzzahl(1);
    stand.ProdFaktor =
        stand.EnergieVerbrauch == 0
            ? kVoll
            : std::min(kVoll, Festkomma::AusDouble(static_cast<double>(stand.EnergieProduktion) /
                                                   stand.EnergieVerbrauch));
    FrischeErtraegeAuf(stand, bedingungen);
}

void VergeheZeit(Long sekunden, Spielstand& stand) {
    if (sekunden == 0) {
        return;
    }
    for (const Rohstoff r : kRohstoffe) {
        stand.Vorrat[r] =
            stand.Vorrat[r] +
            Festkomma::AusDouble((stand.ProStunde[r] * sekunden).AlsDouble() / kSekundenJeStunde);
    }
    stand.secsgone = stand.secsgone + sekunden;
}

}  // namespace tarvelin
