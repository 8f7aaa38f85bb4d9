// The prices of all levels.
#include "model/Cost.h"

#include <array>
#include <cmath>
#include <limits>

#include "model/ItemTable.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr std::size_t kStufen = std::numeric_limits<Byte>::max() + std::size_t{1};

struct Stufenpreis {
    Kosten Betrag{};
    JeRohstoff<FixedPoint> Abzug{};
};

/// Every price there is, as each event of a run asks for some.
using Preistafel = JeItem<std::array<Stufenpreis, kStufen>>;

Preistafel AllePreise() noexcept {
    Preistafel tafel;
    for (const Itemzeile& zeile : Itemtabelle()) {
        for (std::size_t stufe = 0; stufe < kStufen; ++stufe) {
            const double faktor = Kostenfaktor(zeile.Nach, static_cast<double>(stufe));
            Stufenpreis& preis = tafel[zeile.Item][stufe];
            JedenRohstoff([&](Rohstoff r) {
                preis.Betrag[r] = std::trunc(zeile.Basis[r] * faktor);
                preis.Abzug[r] = FixedPoint::FromDouble(preis.Betrag[r]);
            });
        }
    }
    return tafel;
}

const Preistafel kPreise = AllePreise();

}  // namespace

const Kosten& Preis(ItemId item, Byte stufe) {
    return kPreise[item][stufe].Betrag;
}

const JeRohstoff<FixedPoint>& Abzug(ItemId item, Byte stufe) {
    return kPreise[item][stufe].Abzug;
}

std::string Kostentext(const Kosten& kosten) {
    return "Kosten:  Met: " + WholeText(kosten[Rohstoff::Metall]) +
           "  Kris: " + WholeText(kosten[Rohstoff::Kristall]) +
           "  Deut: " + WholeText(kosten[Rohstoff::Deuterium]);
}

}  // namespace tarvelin
