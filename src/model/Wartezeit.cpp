// Gates, resources, sleep windows.
#include "model/Wartezeit.h"

#include <algorithm>

#include "model/Kosten.h"

namespace tarvelin {

namespace {

/// A gate that is closed.
struct Torbefund {
    Sperre Wert = Sperre::Offen;
    Aufenthalt Grund;
};

const Stufenbedarf* FehlendeStufe(const Itemzeile& zeile, const Spielstand& stand) {
    for (const Stufenbedarf& bedarf : zeile.Braucht) {
        if (stand.Stufen[bedarf.Item] < bedarf.Stufe) {
            return &bedarf;
        }
    }
    return nullptr;
}

Sperre Deuteriumtor(Deuteriumbedarf bedarf, const Spielstand& stand) {
    if (bedarf == Deuteriumbedarf::Quelle) {
        return stand.Stufen[ItemId::SKW] == 0 && stand.Stufen[ItemId::DeutMine] == 0
                   ? Sperre::OhneDeuteriumQuelle
                   : Sperre::Offen;
    }
    if (stand.ProStunde[Rohstoff::Deuterium] != Festkomma()) {
        return Sperre::Offen;
    }
    return bedarf == Deuteriumbedarf::Produktion ? Sperre::Voraussetzung : Sperre::Vorerst;
}

Torbefund PruefeTore(const Itemzeile& zeile, const Kosten& preis, const Spielstand& stand) {
    if (stand.ImAusbau[zeile.Queue] && !zeile.Besonders.TrotzAusbau) {
        return {Sperre::Voraussetzung, {.Was = Hindernis::Ausbau, .Queue = zeile.Queue}};
    }
    if (const Stufenbedarf* const fehlt = FehlendeStufe(zeile, stand)) {
        return {Sperre::Voraussetzung, {.Was = Hindernis::Stufe, .Fehlt = *fehlt}};
    }
    if (preis[Rohstoff::Deuterium] <= 0) {
        return {};
    }
    const Sperre sperre = Deuteriumtor(zeile.Besonders.Deuterium, stand);
    return sperre == Sperre::Offen ? Torbefund() : Torbefund{sperre, {.Was = Hindernis::Deuterium}};
}

/// What is short of one resource, and until when.
struct Mangel {
    double Fehlmenge = 0;
    Long Sekunden = 0;
};

/// The wait for a resource whose stock is short. One that never comes gives a wait so long that the
/// next re-timing replaces it.
Mangel MangelAn(double kosten, Festkomma vorrat, Festkomma proStunde) {
    constexpr Long kOhneEnde = 1'000'000'000;
    const double fehlt = kosten - vorrat.AlsDouble();
    if (proStunde <= Festkomma()) {
        return {fehlt + 1, kOhneEnde};
    }
    const double proSekunde = proStunde.AlsDouble() / kSekundenJeStunde;
    return {fehlt + 1, Saettige<Long>(Rundung::cut(1 + fehlt / proSekunde))};
}

constexpr JeRohstoff<Verzoegerung::Art> kArten{
    {Verzoegerung::Art::Metall, Verzoegerung::Art::Kristall, Verzoegerung::Art::Deuterium}};

/// The longest wait for a resource; on a tie the earlier resource keeps the reason: metal before
/// crystal before deuterium.
Long RohstoffWartezeit(const Kosten& preis, const Spielstand& stand, Verzoegerung& grund) {
    Long laengste = 0;
    for (const Rohstoff r : kRohstoffe) {
        if (preis[r] > stand.Vorrat[r].AlsDouble()) {
            const Mangel mangel = MangelAn(preis[r], stand.Vorrat[r], stand.ProStunde[r]);
            if (mangel.Sekunden > laengste) {
                laengste = mangel.Sekunden;
                grund = {.Grund = kArten[r], .Fehlmenge = mangel.Fehlmenge};
            }
        }
    }
    return laengste;
}

/// Moves a wait that ends inside a sleep window to that window's end. Each window is asked once,
/// with the wait as the windows before it left it.
Long NachSchlafzeiten(Long wartezeit, Moment jetzt, const Startbedingungen& bedingungen) {
    for (const cSchlafzeit& schlafzeit : bedingungen.Schlafzeiten) {
        if (schlafzeit.CheckifInside(bedingungen.Uhrzeit(jetzt + wartezeit))) {
            wartezeit = schlafzeit.SecondsFrom_Insert_ToEnd(bedingungen.Uhrzeit(jetzt));
        }
    }
    return wartezeit;
}

}  // namespace

Wartezeit WarteAuf(const Itemzeile& zeile, const Spielstand& stand,
                   const Startbedingungen& bedingungen) {
    const Kosten& preis = Preis(zeile.Item, stand.Stufen[zeile.Item]);
    const Schlange bedient = zeile.Besonders.Bedient;
    const Long bisFrei = stand.FertigZeit[bedient] - stand.secsgone;
    const Torbefund tor = PruefeTore(zeile, preis, stand);
    if (tor.Wert != Sperre::Offen) {
        return {std::max(static_cast<Long>(tor.Wert), bisFrei), std::nullopt, tor.Grund};
    }
    Wartezeit warten{.Sekunden = 0, .Mangel = Verzoegerung(), .Grund = {}};
    warten.Sekunden = RohstoffWartezeit(preis, stand, *warten.Mangel);
    if (warten.Sekunden > 0) {
        warten.Grund.Was = Hindernis::Rohstoff;
    }
    if (bisFrei > warten.Sekunden) {
        warten.Sekunden = bisFrei;
        warten.Grund = {.Was = Hindernis::Schlange, .Queue = bedient};
    }
    const Long ausgeschlafen = NachSchlafzeiten(warten.Sekunden, stand.secsgone, bedingungen);
    if (ausgeschlafen != warten.Sekunden) {
        warten.Sekunden = std::max(ausgeschlafen, bisFrei);
        warten.Grund = {.Was = Hindernis::Schlafzeit};
    }
    return warten;
}

}  // namespace tarvelin
