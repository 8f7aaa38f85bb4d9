// The prices of all levels.
#include "model/Kosten.h"

#include <array>
#include <cmath>
#include <limits>

#include "model/Itemtabelle.h"
#include "util/Zahlentext.h"

namespace tarvelin {

namespace {

constexpr std::size_t kStufen = std::numeric_limits<Byte>::max() + std::size_t{1};

/// Every price there is, as each event of a run asks for some.
using Preistafel = JeItem<std::array<Kosten, kStufen>>;

Preistafel AllePreise() {
    Preistafel tafel;
    for (const Itemzeile& zeile : Itemtabelle()) {
        for (std::size_t stufe = 0; stufe < kStufen; ++stufe) {
            const double faktor = Kostenfaktor(zeile.Nach, static_cast<double>(stufe));
            for (const Rohstoff r : kRohstoffe) {
                tafel[zeile.Item][stufe][r] = std::trunc(zeile.Basis[r] * faktor);
            }
        }
    }
    return tafel;
}

}  // namespace

const Kosten& Preis(ItemId item, Byte stufe) {
    static const Preistafel kPreise = AllePreise();
    return kPreise[item][stufe];
}

std::string Kostentext(const Kosten& kosten) {
    return "Kosten:  Met: " + Ganztext(kosten[Rohstoff::Metall]) +
           "  Kris: " + Ganztext(kosten[Rohstoff::Kristall]) +
           "  Deut: " + Ganztext(kosten[Rohstoff::Deuterium]);
}

}  // namespace tarvelin
