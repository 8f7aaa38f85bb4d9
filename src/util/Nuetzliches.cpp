// Splitting and padding of texts, and texts for durations.
#include "util/Nuetzliches.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <system_error>

#include "util/NumberText.h"
#include "util/Utf8.h"

namespace tarvelin {

namespace {

void ReplaceAll(std::string& text, std::string_view wanted, std::string_view replacement) {
    for (auto position = text.find(wanted); position != std::string::npos;
         position = text.find(wanted, position + replacement.size())) {
        text.replace(position, wanted.size(), replacement);
    }
}

std::string AtLeastTwoDigits(std::int64_t number) {
    return PadIntegerDigits(std::to_string(number), 2);
}

/// 0 for an unknown unit.
std::int64_t SecondsPer(std::string_view unit) {
    if (unit == "s") {
        return 1;
    }
    if (unit == "m") {
        return 60;
    }
    if (unit == "h") {
        return 3600;
    }
    return unit == "d" ? 86400 : 0;
}

/// How many of the units days, hours and minutes are larger than `unit`.
int Rank(std::string_view unit) {
    constexpr std::string_view kUnits = "dhms";
    const auto position = unit.size() == 1 ? kUnits.find(unit) : std::string_view::npos;
    return position == std::string_view::npos ? 0 : static_cast<int>(position);
}

/// Takes as many whole units as possible from `rest` and returns their number.
std::int64_t TakeWhole(std::int64_t& rest, std::int64_t secondsPerUnit) {
    const auto whole =
        Rounding::Floor(static_cast<double>(rest) / static_cast<double>(secondsPerUnit));
    rest -= whole * secondsPerUnit;
    return whole;
}

}  // namespace

std::string GetToken(std::string_view Text, int Index, std::string_view Separator) {
    const std::string_view separator = Separator.empty() ? ":" : Separator;
    std::string copy(Text);
    if (!copy.ends_with(separator)) {
        copy += separator;
    }
    std::string_view rest = copy;
    if (rest.starts_with(separator)) {
        rest.remove_prefix(separator.size());
    }
    std::string_view token;
    for (int i = 0; i < Index; ++i) {
        token = TextBefore(rest, separator);
        if (rest.empty()) {
            break;
        }
        rest = TextAfter(rest, separator);
    }
    return std::string(token);
}

std::string_view TextBefore(std::string_view Text, std::string_view Separator) {
    const auto position = Text.find(Separator);
    return position == std::string_view::npos ? std::string_view() : Text.substr(0, position);
}

std::string_view TextAfter(std::string_view Text, std::string_view Separator) {
    const auto position = Text.find(Separator);
    if (position == std::string_view::npos || Separator.empty()) {
        return Text;
    }
    return Text.substr(position + FirstCharacterSize(Text.substr(position)));
}

std::string PadIntegerDigits(std::string Text, int Count) {
    if (!IsNumber(Text)) {
        return Text;
    }
    const std::size_t length = std::min(Text.find(','), Text.size());
    const auto target = static_cast<std::size_t>(std::max(Count, 0));
    Text.insert(0, length < target ? target - length : 0, '0');
    return Text;
}

std::string PadDecimals(std::string Text, int Count) {
    if (Count < 1 || !IsNumber(Text)) {
        return Text;
    }
    const auto target = static_cast<std::size_t>(Count);
    auto comma = Text.rfind(',');
    if (comma == std::string::npos) {
        comma = Text.size();
        Text += ',';
    }
    const std::size_t decimals = Text.size() - comma - 1;
    Text.append(decimals < target ? target - decimals : 0, '0');
    return Text;
}

std::string FormatDuration(Long Value, std::string_view Unit, std::string_view Format,
                           std::string_view TopUnit) {
    const std::int64_t secondsPerUnit = SecondsPer(Unit);
    if (secondsPerUnit == 0) {
        return "";
    }
    std::int64_t rest = Saturate<Long>(Value * secondsPerUnit);
    const int rank = Rank(TopUnit);
    const std::int64_t days = rank == 0 ? TakeWhole(rest, 86400) : 0;
    const std::int64_t hours = rank < 2 ? TakeWhole(rest, 3600) : 0;
    const std::int64_t minutes = rank < 3 ? TakeWhole(rest, 60) : 0;

    struct Replacement {
        std::string_view field;
        std::string text;
    };
    const std::array<Replacement, 13> replacements{{{"dd", AtLeastTwoDigits(days)},
                                                    {"d", std::to_string(days)},
                                                    {"hh", AtLeastTwoDigits(hours)},
                                                    {"h", std::to_string(hours)},
                                                    {"mm", AtLeastTwoDigits(minutes)},
                                                    {"m", std::to_string(minutes)},
                                                    {"ss", AtLeastTwoDigits(rest)},
                                                    {"s", std::to_string(rest)},
                                                    {"(0)", " Tage "},
                                                    {"(1)", "h "},
                                                    {"(2)", "m "},
                                                    {"(3)", "s "},
                                                    {"(&)", "und"}}};
    std::string text(Format);
    for (const auto& replacement : replacements) {
        ReplaceAll(text, replacement.field, replacement.text);
    }
    return text;
}

}  // namespace tarvelin
