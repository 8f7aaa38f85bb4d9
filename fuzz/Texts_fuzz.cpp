// Any texts where numbers, dates, durations and lists of tokens are read.
#include <array>
#include <cmath>
#include <ctime>
#include <limits>
#include <sstream>

#include "FuzzInput.h"
#include "util/DateTime.h"
#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {
namespace {

constexpr std::int64_t kSekundenBis1970 = 25569LL * 86400;

/// A text with each digit as a 9.
std::string Form(std::string_view text) {
    std::string form(text);
    for (char& z : form) {
        z = z >= '0' && z <= '9' ? '9' : z;
    }
    return form;
}

std::string_view OhneBlanks(std::string_view text) {
    const auto anfang = text.find_first_not_of(' ');
    return anfang == std::string_view::npos
               ? std::string_view()
               : text.substr(anfang, text.find_last_not_of(' ') - anfang + 1);
}

/// What number a text is, by the C library: it reads a point, and more than we do.
void PruefeZahl(const std::string& text) {
    std::string c(OhneBlanks(text));
    const auto komma = c.find(',');
    const bool form = !c.empty() && c.find_first_not_of("+-,0123456789") == std::string::npos &&
                      c.find_last_of("+-") + 1 <= 1 &&
                      c.find(',', komma + 1) == std::string::npos && c.back() >= '0' &&
                      c.back() <= '9';
    const auto zahl = ParseNumber(text);
    Verlange(zahl.has_value() == form && IsNumber(text) == form, "the form of a number", text);
    if (!zahl) {
        Verlange(!ParseWholeNumber(text, std::numeric_limits<std::int64_t>::min(), 0), "no whole",
                 text);
        return;
    }
    if (komma != std::string::npos) {
        c[komma] = '.';
    }
    constexpr double kMax = std::numeric_limits<double>::max();
    const double wert = std::min(std::max(std::strtod(c.c_str(), nullptr), -kMax), kMax);
    Verlange(*zahl == wert, "the value of a number", text);
    const long long ganz = std::strtoll(c.c_str(), nullptr, 10);
    const auto gelesen = ParseWholeNumber(text, -1000, std::numeric_limits<std::int64_t>::max());
    Verlange(
        gelesen == (komma == std::string::npos && ganz >= -1000 ? std::optional<std::int64_t>(ganz)
                                                                : std::nullopt),
        "the value of a whole number", text);
}

void PruefeDezimaltext(double wert, int stellen) {
    const std::string text = DecimalText(wert, stellen);
    const auto zurueck = ParseNumber(text);
    Verlange(zurueck.has_value() && text != "-0", "a decimal text is a number", text);
    Verlange(text.find(',') == std::string::npos || (text.back() != '0' && text.back() != ','),
             "a decimal text is plain", text);
    const double schritt = std::pow(10.0, -stellen);
    Verlange(std::abs(*zurueck - wert) <= 0.500001 * schritt + std::abs(wert) * 1e-15,
             "a decimal text is near its value", text);
    if (std::abs(wert) < 9e15) {
        Verlange(WholeText(wert) == std::to_string(static_cast<std::int64_t>(wert)),
                 "the whole part", WholeText(wert));
    }
}

void PruefeAuffuellen(const std::string& text, int anzahl) {
    const std::string vorn = PadIntegerDigits(text, anzahl);
    const auto nullen = vorn.size() - text.size();
    Verlange(vorn == std::string(nullen, '0') + text, "zeros in front of the text", vorn);
    const std::string hinten = PadDecimals(text, anzahl);
    Verlange(hinten.starts_with(text), "zeros behind the text", hinten);
    if (!IsNumber(text)) {
        Verlange(vorn == text && hinten == text, "what is no number stays", text);
        return;
    }
    const auto stellen = static_cast<std::ptrdiff_t>(std::min(vorn.find(','), vorn.size()));
    Verlange(nullen == 0 || stellen == anzahl, "so many digits in front of the comma", vorn);
    Verlange(stellen >= anzahl, "not fewer digits in front of the comma", vorn);
    const auto bruch = static_cast<std::ptrdiff_t>(hinten.size() - 1 - hinten.find(','));
    Verlange(anzahl < 1 || bruch >= anzahl, "so many decimals", hinten);
}

/// The calendar of the C library agrees about which dates there are and when they are.
void PruefeDatum(const std::string& text) {
    std::tm tm{};
    int zeichen = 0;
    int jahr = 0;
    const auto felder =
        std::sscanf(text.c_str(), "%2d.%2d.%4d %2d:%2d%n:%2d%n", &tm.tm_mday, &tm.tm_mon, &jahr,
                    &tm.tm_hour, &tm.tm_min, &zeichen, &tm.tm_sec, &zeichen);
    bool erwartet = felder >= 5 && static_cast<std::size_t>(zeichen) == text.size() &&
                    text.find_first_not_of("0123456789.: ") == std::string::npos;
    const std::string form = Form(text);
    const auto blank = form.find(' ');
    // The C library skips blanks where we don't, and takes any width up to the one that it is told.
    erwartet =
        erwartet && form.find(' ', blank + 1) == std::string::npos &&
        (form.substr(0, blank).ends_with(".9999") || form.substr(0, blank).ends_with(".99")) &&
        form[blank + 1] == '9' && form[0] == '9';
    if (form.substr(0, blank).ends_with(".99")) {
        jahr += jahr < 30 ? 2000 : 1900;
    }
    tm.tm_mon -= 1;
    tm.tm_year = jahr - 1900;
    std::tm genau = tm;
    const std::int64_t sekunden = ::timegm(&genau);
    erwartet = erwartet && jahr >= 100 && genau.tm_mday == tm.tm_mday &&
               genau.tm_mon == tm.tm_mon && genau.tm_hour == tm.tm_hour &&
               genau.tm_min == tm.tm_min && genau.tm_sec == tm.tm_sec;
    const auto zeit = ParseDateTime(text);
    Verlange(zeit.has_value() == erwartet, "which dates there are", text);
    if (!zeit) {
        return;
    }
    Verlange(zeit->Seconds() == sekunden + kSekundenBis1970, "when a date is", text);
    Verlange(Weekday(*zeit) == genau.tm_wday + 1, "the weekday of a date", text);
    Verlange(ParseDateTime(DateTimeText(*zeit)) == zeit, "a date's own text", DateTimeText(*zeit));
}

void PruefeDauer(Long wert, const std::string& einheit, const std::string& format,
                 const std::string& hoechste) {
    const bool fremd = format.find_first_of("dhms(") == std::string::npos;
    const std::string text = FormatDuration(wert, einheit, format, hoechste);
    Verlange(!fremd || text == format || text.empty(), "only fields change", text);
    for (const auto& [name, sekunden] :
         {std::pair("s", 1), std::pair("m", 60), std::pair("h", 3600), std::pair("d", 86400)}) {
        std::int64_t d = 0;
        std::int64_t h = 0;
        std::int64_t m = 0;
        std::int64_t s = 0;
        const std::string felder = FormatDuration(wert, name, "d h m s", hoechste);
        std::istringstream(felder) >> d >> h >> m >> s;
        Verlange(((d * 24 + h) * 60 + m) * 60 + s == Saturate<Long>(std::int64_t{wert} * sekunden),
                 "the fields of a duration sum up", felder);
        Verlange((hoechste != "h" || d == 0) && (hoechste != "m" || (d == 0 && h == 0)) &&
                     (hoechste != "s" || (d == 0 && h == 0 && m == 0)),
                 "nothing above the top unit", felder);
        Verlange(hoechste == "s" || (s >= 0 && s < 60), "a minute has 60 seconds", felder);
    }
}

void PruefeToken(const std::string& text, char trenner) {
    std::string_view ohne = text;
    ohne.remove_prefix(ohne.starts_with(trenner) ? 1 : 0);
    std::istringstream teile{std::string(ohne)};
    const std::string_view separator(&trenner, 1);
    int n = 0;
    for (std::string teil; std::getline(teile, teil, trenner);) {
        Verlange(GetToken(text, ++n, separator) == teil, "tokens in their order", teil);
    }
    Verlange(GetToken(text, n + 1, separator).empty() && GetToken(text, 0, separator).empty() &&
                 GetToken(text, -1, separator).empty(),
             "no token outside the list", text);
    const bool da = text.find(trenner) != std::string::npos;
    Verlange(std::string(TextBefore(text, separator)) + (da ? std::string(separator) : "") +
                     std::string(TextAfter(text, separator)) ==
                 text,
             "before and after", text);
}

}  // namespace
}  // namespace tarvelin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    using namespace tarvelin;
    Eingabe eingabe(daten, laenge);
    const std::string text = eingabe.NimmTeil();
    const std::string zweiter = eingabe.NimmTeil();
    const std::string dritter(eingabe.Rest());
    PruefeZahl(text);
    PruefeDatum(text);
    const auto zahl = ParseNumber(zweiter);
    const int klein = zahl ? static_cast<int>(HalfEvenLong(*zahl) % 40) : 2;
    PruefeAuffuellen(text, klein);
    if (const auto wert = ParseNumber(text)) {
        PruefeDezimaltext(*wert, std::abs(klein) % 16);
        PruefeDauer(HalfEvenLong(*wert), zweiter, dritter, dritter.substr(0, 1));
    }
    PruefeDauer(klein, zweiter, text, dritter);
    PruefeToken(text, zweiter.empty() || zweiter.front() < 0 ? ':' : zweiter.front());
    static_cast<void>(GetToken(text, klein, dritter));
    static_cast<void>(TextBefore(text, dritter));
    static_cast<void>(TextAfter(text, dritter));
    return 0;
}
