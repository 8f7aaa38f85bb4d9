// Texts of fixed-point numbers.
#include "util/FixedPoint.h"

namespace tarvelin {

namespace {

/// Sign, whole part, separator and all four decimals.
std::string AlleStellen(Festkomma wert, char trenner) {
    const std::int64_t rohwert = wert.Rohwert();
    // The magnitude is taken without a sign, as the lowest number has no positive twin.
    const std::uint64_t betrag = rohwert < 0 ? 0U - static_cast<std::uint64_t>(rohwert)
                                             : static_cast<std::uint64_t>(rohwert);
    std::string ziffern = std::to_string(betrag);
    if (ziffern.size() <= Festkomma::kStellen) {
        ziffern.insert(0, Festkomma::kStellen + 1 - ziffern.size(), '0');
    }
    ziffern.insert(ziffern.size() - Festkomma::kStellen, 1, trenner);
    return rohwert < 0 ? "-" + ziffern : ziffern;
}

}  // namespace

std::string Dezimaltext(Festkomma wert) {
    std::string text = AlleStellen(wert, ',');
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == ',') {
        text.pop_back();
    }
    return text;
}

std::string VierStellenText(Festkomma wert) {
    return AlleStellen(wert, '.');
}

}  // namespace tarvelin
