// Cutting and padding of texts, durations, and the look into folders.
#include "util/Nuetzliches.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <system_error>

#include "util/NumberText.h"

namespace tarvelin {

namespace {

/// Length in bytes of the UTF-8 character that begins a text; a stray byte is one of its own.
std::size_t ErstesZeichen(std::string_view text) {
    const bool mehrere = static_cast<unsigned char>(text.front()) >= 0xC0U;
    std::size_t n = 1;
    while (mehrere && n < text.size() && (static_cast<unsigned char>(text[n]) & 0xC0U) == 0x80U) {
        ++n;
    }
    return n;
}

void ErsetzeAlle(std::string& text, std::string_view gesucht, std::string_view ersatz) {
    for (auto ort = text.find(gesucht); ort != std::string::npos;
         ort = text.find(gesucht, ort + ersatz.size())) {
        text.replace(ort, gesucht.size(), ersatz);
    }
}

std::string MindestensZweistellig(std::int64_t zahl) {
    return PadIntegerDigits(std::to_string(zahl), 2);
}

/// Seconds of one unit, 0 for an unknown one.
std::int64_t SekundenJe(std::string_view einheit) {
    if (einheit == "s") {
        return 1;
    }
    if (einheit == "m") {
        return 60;
    }
    if (einheit == "h") {
        return 3600;
    }
    return einheit == "d" ? 86400 : 0;
}

/// How many of days, hours and minutes take no part, as time above `einheit` flows into it.
int Rang(std::string_view einheit) {
    constexpr std::string_view kEinheiten = "dhms";
    const auto ort = einheit.size() == 1 ? kEinheiten.find(einheit) : std::string_view::npos;
    return ort == std::string_view::npos ? 0 : static_cast<int>(ort);
}

/// Takes the whole units out of `rest`.
std::int64_t NimmGanze(std::int64_t& rest, std::int64_t sekundenJeEinheit) {
    const auto ganze =
        Rundung::floor(static_cast<double>(rest) / static_cast<double>(sekundenJeEinheit));
    rest -= ganze * sekundenJeEinheit;
    return ganze;
}

}  // namespace

std::string GetToken(std::string_view Text, int Index, std::string_view Separator) {
    const std::string_view trenner = Separator.empty() ? ":" : Separator;
    std::string kopie(Text);
    if (!kopie.ends_with(trenner)) {
        kopie += trenner;
    }
    std::string_view rest = kopie;
    if (rest.starts_with(trenner)) {
        rest.remove_prefix(trenner.size());
    }
    std::string_view token;
    for (int i = 0; i < Index; ++i) {
        token = TextBefore(rest, trenner);
        if (rest.empty()) {
            break;
        }
        rest = TextAfter(rest, trenner);
    }
    return std::string(token);
}

std::string_view TextBefore(std::string_view Text, std::string_view Separator) {
    const auto ort = Text.find(Separator);
    return ort == std::string_view::npos ? std::string_view() : Text.substr(0, ort);
}

std::string_view TextAfter(std::string_view Text, std::string_view Separator) {
    const auto ort = Text.find(Separator);
    if (ort == std::string_view::npos || Separator.empty()) {
        return Text;
    }
    return Text.substr(ort + ErstesZeichen(Text.substr(ort)));
}

std::string PadIntegerDigits(std::string Text, int Count) {
    if (!IstZahl(Text)) {
        return Text;
    }
    const std::size_t laenge = std::min(Text.find(','), Text.size());
    const auto ziel = static_cast<std::size_t>(std::max(Count, 0));
    Text.insert(0, laenge < ziel ? ziel - laenge : 0, '0');
    return Text;
}

std::string PadDecimals(std::string Text, int Count) {
    if (Count < 1 || !IstZahl(Text)) {
        return Text;
    }
    const auto ziel = static_cast<std::size_t>(Count);
    auto komma = Text.rfind(',');
    if (komma == std::string::npos) {
        komma = Text.size();
        Text += ',';
    }
    const std::size_t stellen = Text.size() - komma - 1;
    Text.append(stellen < ziel ? ziel - stellen : 0, '0');
    return Text;
}

std::string FormatDuration(Long Value, std::string_view Unit, std::string_view Format,
                           std::string_view TopUnit) {
    const std::int64_t sekundenJeEinheit = SekundenJe(Unit);
    if (sekundenJeEinheit == 0) {
        return "";
    }
    std::int64_t rest = Saettige<Long>(Value * sekundenJeEinheit);
    const int rang = Rang(TopUnit);
    const std::int64_t tage = rang == 0 ? NimmGanze(rest, 86400) : 0;
    const std::int64_t stunden = rang < 2 ? NimmGanze(rest, 3600) : 0;
    const std::int64_t minuten = rang < 3 ? NimmGanze(rest, 60) : 0;

    struct Ersetzung {
        std::string_view feld;
        std::string text;
    };
    const std::array<Ersetzung, 13> ersetzungen{{{"dd", MindestensZweistellig(tage)},
                                                 {"d", std::to_string(tage)},
                                                 {"hh", MindestensZweistellig(stunden)},
                                                 {"h", std::to_string(stunden)},
                                                 {"mm", MindestensZweistellig(minuten)},
                                                 {"m", std::to_string(minuten)},
                                                 {"ss", MindestensZweistellig(rest)},
                                                 {"s", std::to_string(rest)},
                                                 {"(0)", " Tage "},
                                                 {"(1)", "h "},
                                                 {"(2)", "m "},
                                                 {"(3)", "s "},
                                                 {"(&)", "und"}}};
    std::string text(Format);
    for (const auto& ersetzung : ersetzungen) {
        ErsetzeAlle(text, ersetzung.feld, ersetzung.text);
    }
    return text;
}

}  // namespace tarvelin
