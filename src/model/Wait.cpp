// Gates, resources, sleep windows.
#include "model/Wait.h"

#include <algorithm>

#include "model/Cost.h"

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
    if (stand.ProStunde[Rohstoff::Deuterium] != FixedPoint()) {
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
    if (sperre == Sperre::Offen) {
        return {};
    }
    return {sperre, {.Was = Hindernis::Deuterium}};
}

/// What is short of a resource, and for how long. Figures side by side, not a `Verzoegerung`: the
/// machine would wait for the halves of it at each copy.
struct Mangel {
    Long Sekunden = 0;
    Verzoegerung::Art Art = Verzoegerung::Art::Keine;
    double Fehlmenge = 0;
};

constexpr JeRohstoff<Verzoegerung::Art> kArten{
    {Verzoegerung::Art::Metall, Verzoegerung::Art::Kristall, Verzoegerung::Art::Deuterium}};

/// The wait for a resource whose stock is short. One that never comes gives a wait so long that the
/// next re-timing replaces it.
Long SekundenBis(double fehlt, double proSekunde) {
    constexpr Long kOhneEnde = 1'000'000'000;
    if (proSekunde <= 0) {
        return kOhneEnde;
    }
    return Saturate<Long>(Rounding::Cut(1 + fehlt / proSekunde));
}

/// Whether a stock is enough, told by whole numbers. Where they don't tell it surely, false.
bool IstSicherGenug(FixedPoint vorrat, FixedPoint abzug) {
    constexpr FixedPoint kGenau = FixedPoint::FromWhole(std::int64_t{1} << 38U);
    return abzug <= vorrat && abzug < kGenau;
}

/// The longest wait for a resource; on a tie the earlier resource keeps the reason: metal before
/// crystal before deuterium.
Mangel LaengsterMangel(const Itemzeile& zeile, const Kosten& preis, const Spielstand& stand) {
    const JeRohstoff<FixedPoint>& abzug = Abzug(zeile.Item, stand.Stufen[zeile.Item]);
    Mangel laengster;
    JedenRohstoff([&](Rohstoff r) __attribute__((always_inline)) {
        if (IstSicherGenug(stand.Vorrat[r], abzug[r])) {
            return;
        }
        const double fehlt = preis[r] - stand.Vorrat[r].ToDouble();
        if (fehlt <= 0) {
            return;
        }
        const Long sekunden = SekundenBis(fehlt, stand.ProSekunde[r]);
        if (sekunden > laengster.Sekunden) {
            laengster = {.Sekunden = sekunden, .Art = kArten[r], .Fehlmenge = fehlt + 1};
        }
    });
    return laengster;
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
        return {.Sekunden = std::max(static_cast<Long>(tor.Wert), bisFrei),
                .Mangel = {.Grund = Verzoegerung::Art::OhneAngabe},
                .Grund = tor.Grund};
    }
    const Mangel mangel = LaengsterMangel(zeile, preis, stand);
    const Long wach = std::max(mangel.Sekunden, bisFrei);
    const Long ausgeschlafen = NachSchlafzeiten(wach, stand.secsgone, bedingungen);
    Aufenthalt grund;
    if (ausgeschlafen != wach) {
        grund.Was = Hindernis::Schlafzeit;
    } else if (bisFrei > mangel.Sekunden) {
        grund = {.Was = Hindernis::Schlange, .Queue = bedient};
    } else if (mangel.Sekunden > 0) {
        grund.Was = Hindernis::Rohstoff;
    }
    return {.Sekunden = ausgeschlafen == wach ? wach : std::max(ausgeschlafen, bisFrei),
            .Mangel = {.Grund = mangel.Art, .Fehlmenge = mangel.Fehlmenge},
            .Grund = grund,
            .Wach = wach};
}

}  // namespace tarvelin
