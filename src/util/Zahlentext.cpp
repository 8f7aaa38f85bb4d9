// Reading and writing of German number texts.
#include "util/Zahlentext.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "util/Rundung.h"

namespace tarvelin {

namespace {

/// A number text taken apart: its sign and its digits, of which `mitKomma` tells whether one of
/// them is a comma.
struct Zahlform {
    bool negativ = false;
    std::string_view ziffern;
    bool mitKomma = false;
};

constexpr bool IstZiffer(char zeichen) {
    return zeichen >= '0' && zeichen <= '9';
}

std::optional<Zahlform> Zerlege(std::string_view text) {
    const auto anfang = text.find_first_not_of(' ');
    if (anfang == std::string_view::npos) {
        return std::nullopt;
    }
    text = text.substr(anfang, text.find_last_not_of(' ') - anfang + 1);
    Zahlform form;
    if (text.front() == '-' || text.front() == '+') {
        form.negativ = text.front() == '-';
        text.remove_prefix(1);
    }
    const auto komma = text.find(',');
    const std::string_view ganz = text.substr(0, komma);
    form.ziffern = text;
    form.mitKomma = komma != std::string_view::npos;
    const std::string_view bruch = form.mitKomma ? text.substr(komma + 1) : ganz;
    if (bruch.empty() || !std::ranges::all_of(ganz, IstZiffer) ||
        !std::ranges::all_of(bruch, IstZiffer)) {
        return std::nullopt;
    }
    return form;
}

/// The digits of a value without a fraction, none cut off.
std::string AlleZiffern(double ganz) {
    constexpr std::size_t kMeisteZiffern = std::numeric_limits<double>::max_exponent10 + 3;
    std::string text(kMeisteZiffern, '\0');
    const auto ende =
        std::to_chars(text.data(), text.data() + text.size(), ganz, std::chars_format::fixed, 0);
    text.resize(static_cast<std::size_t>(ende.ptr - text.data()));
    return text;
}

double InDoubleGrenzen(double wert) {
    constexpr double kMax = std::numeric_limits<double>::max();
    return std::isnan(wert) ? 0.0 : std::clamp(wert, -kMax, kMax);
}

}  // namespace

std::optional<double> LiesZahl(std::string_view text) {
    const auto form = Zerlege(text);
    if (!form) {
        return std::nullopt;
    }
    std::string ziffern(1, '0');
    ziffern += form->ziffern;
    std::ranges::replace(ziffern, ',', '.');
    double wert = 0;
    const auto ergebnis = std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), wert,
                                          std::chars_format::fixed);
    if (ergebnis.ec == std::errc::result_out_of_range) {
        // Too large, or so small that it is 0.
        wert = ziffern.find_first_not_of('0') < ziffern.find('.')
                   ? std::numeric_limits<double>::max()
                   : 0.0;
    }
    return form->negativ ? -wert : wert;
}

bool IstZahl(std::string_view text) {
    return Zerlege(text).has_value();
}

std::optional<std::int64_t> LiesGanzzahl(std::string_view text, std::int64_t min,
                                         std::int64_t max) {
    const auto form = Zerlege(text);
    if (!form || form->mitKomma) {
        return std::nullopt;
    }
    std::string ziffern(form->negativ ? 1 : 0, '-');
    ziffern += form->ziffern;
    std::int64_t wert = 0;
    const auto ergebnis = std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), wert);
    if (ergebnis.ec == std::errc::result_out_of_range) {
        wert = form->negativ ? std::numeric_limits<std::int64_t>::min()
                             : std::numeric_limits<std::int64_t>::max();
    }
    return wert >= min && wert <= max ? std::optional(wert) : std::nullopt;
}

std::string Dezimaltext(double wert, int stellen) {
    constexpr double kOhneBruch = 9007199254740992.0;  // from 2^53 on a double is whole
    if (!(std::abs(wert) < kOhneBruch)) {
        return Ganztext(wert);
    }
    // The product may lie beyond 2^63, where it is whole and needs no rounding.
    const double produkt = wert * std::pow(10.0, stellen);
    const double gerundet =
        std::abs(produkt) < kOhneBruch ? static_cast<double>(Rundung::half_even(produkt)) : produkt;
    std::string ziffern = AlleZiffern(std::abs(gerundet));
    const auto n = static_cast<std::size_t>(stellen);
    if (ziffern.size() <= n) {
        ziffern.insert(0, n + 1 - ziffern.size(), '0');
    }
    std::string bruch = ziffern.substr(ziffern.size() - n);
    bruch.erase(bruch.find_last_not_of('0') + 1);
    std::string text(gerundet < 0 ? 1 : 0, '-');
    text += ziffern.substr(0, ziffern.size() - n);
    return bruch.empty() ? text : text + "," + bruch;
}

std::string Ganztext(double wert) {
    const double ganz = std::trunc(InDoubleGrenzen(wert));
    return AlleZiffern(ganz == 0 ? 0.0 : ganz);  // no "-0"
}

}  // namespace tarvelin
