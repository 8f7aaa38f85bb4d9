// Reading and writing of German number texts.
#include "util/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "util/Rounding.h"

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

/// All digits in front of the point, and `stellen` behind it.
std::string AlleZiffern(double wert, int stellen) {
    constexpr auto kMeisteZiffern =
        static_cast<std::size_t>(std::numeric_limits<double>::max_exponent10) + 4;
    std::string text(kMeisteZiffern + static_cast<std::size_t>(stellen), '\0');
    const auto ende = std::to_chars(text.data(), text.data() + text.size(), wert,
                                    std::chars_format::fixed, stellen);
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
    const double zehnerpotenz = std::pow(10.0, stellen);
    const double produkt = wert * zehnerpotenz;
    // A product without a fraction needs no rounding, and the value as it is has fewer digits.
    const double gerundet = std::abs(produkt) < kOhneBruch
                                ? static_cast<double>(Rundung::half_even(produkt)) / zehnerpotenz
                                : wert;
    std::string text = AlleZiffern(gerundet == 0 ? 0.0 : gerundet, stellen);
    if (const auto punkt = text.find('.'); punkt != std::string::npos) {
        text[punkt] = ',';
        text.erase(text.find_last_not_of('0') + 1);
        text.erase(text.find_last_not_of(',') + 1);
    }
    return text;
}

std::string Ganztext(double wert) {
    const double ganz = std::trunc(InDoubleGrenzen(wert));
    return AlleZiffern(ganz == 0 ? 0.0 : ganz, 0);  // no "-0"
}

}  // namespace tarvelin
