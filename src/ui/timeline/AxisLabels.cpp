// Steps, words and places on the axis.
#include "ui/timeline/AxisLabels.h"

#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

constexpr std::int64_t kMinute = 60;
constexpr std::int64_t kHour = 60 * kMinute;
constexpr std::int64_t kDay = 24 * kHour;
constexpr double kGap = 4;
/// Pixels between hour lines.
constexpr double kLeastHourStep = 46;
constexpr double kChipMargin = 4;

DateTime FirstInSight(DateTime begin, const TimeScale& scale) {
    return begin + static_cast<std::int64_t>(std::floor(scale.first));
}

QString DateOf(DateTime day, bool withYear) {
    const std::string date = DateText(day);
    return ToQString(withYear ? date : date.substr(0, date.rfind('.') + 1));
}

/// From the longest to the shortest.
QStringList DayTexts(DateTime day, bool isEachDay) {
    const QString weekday = ToQString(WeekdayShort(day)) + QLatin1Char(' ');
    if (!isEachDay) {
        return {weekday + DateOf(day, true), DateOf(day, true)};
    }
    return {ToQString(WeekdayLong(day)) + QStringLiteral(", ") + DateOf(day, true),
            weekday + DateOf(day, true), weekday + DateOf(day, false), DateOf(day, false)};
}

QString ShortTime(DateTime time) {
    return ToQString(ShortTimeOfDayText(time));
}

QStringList NightTexts(DateTime from, DateTime until) {
    const QString dash = QStringLiteral("–");
    QStringList texts{ShortTime(from) + dash + ShortTime(until)};
    if (from.Seconds() % kHour == 0 && until.Seconds() % kHour == 0) {
        texts << ShortTime(from).left(2) + dash + ShortTime(until).left(2);
    }
    return texts;
}

/// Windows that overlap are one.
std::vector<std::pair<DateTime, DateTime>> Unite(std::span<const cSchlafzeit> nights) {
    std::vector<std::pair<DateTime, DateTime>> united;
    for (const cSchlafzeit& night : nights) {
        if (night.Startzeit() < night.Endzeit()) {
            united.emplace_back(night.Startzeit(), night.Endzeit());
        }
    }
    std::ranges::sort(united);
    std::size_t kept = 0;
    for (std::size_t i = 1; i < united.size(); ++i) {
        if (united[i].first < united[kept].second) {
            united[kept].second = std::max(united[kept].second, united[i].second);
        } else {
            united[++kept] = united[i];
        }
    }
    united.resize(std::min(united.size(), kept + 1));
    return united;
}

}  // namespace

std::optional<std::int64_t> HourStep(double perSecond, double labelWidth) {
    const double least = std::max(kLeastHourStep, labelWidth + kGap);
    for (const std::int64_t step : {kMinute, 5 * kMinute, 10 * kMinute, 15 * kMinute, 30 * kMinute,
                                    kHour, 2 * kHour, 3 * kHour, 6 * kHour, 12 * kHour, kDay}) {
        if (static_cast<double>(step) * perSecond >= least) {
            return step;
        }
    }
    return std::nullopt;
}

std::int64_t DayStep(double perSecond, const TextWidth& widthOf) {
    const double shortDate = widthOf(QStringLiteral("00.00.")) + 2 * kGap;
    const double date = widthOf(QStringLiteral("00.00.0000")) + 2 * kGap;
    const double day = static_cast<double>(kDay) * perSecond;
    if (day >= shortDate) {
        return 1;
    }
    std::int64_t step = 2 * day >= date ? 2 : 7;
    // The clock ends before that.
    constexpr std::int64_t kLongest = 100'000;
    while (step > 2 && step < kLongest && static_cast<double>(step) * day < date) {
        step *= 2;
    }
    return step;
}

std::vector<std::int64_t> GridSeconds(DateTime begin, const TimeScale& scale, std::int64_t step) {
    std::vector<std::int64_t> seconds;
    const std::int64_t first = FirstInSight(begin, scale).Seconds();
    for (std::int64_t at = (first + step - 1) / step * step;
         static_cast<double>(at - begin.Seconds()) <= scale.Last(); at += step) {
        seconds.push_back(at - begin.Seconds());
    }
    return seconds;
}

std::vector<PlacedText> DayLabels(DateTime begin, const TimeScale& scale,
                                  const TextWidth& widthOf) {
    const std::int64_t step = DayStep(scale.perSecond, widthOf);
    const auto x = [&](DateTime time) {
        return scale.X(static_cast<double>(time.Seconds() - begin.Seconds()));
    };
    std::vector<PlacedText> labels;
    const std::int64_t length = step * kDay;
    DateTime day(FirstInSight(begin, scale).Seconds() / length * length);
    for (; x(day) <= scale.right; day = day + length) {
        // The first day of a plan has the plan's date, wherever the step would begin.
        const DateTime shown = std::max(day, StartOfDay(begin));
        const double left = std::max(x(shown), scale.left) + kGap;
        const double room = std::min(x(day + length), scale.right) - left;
        for (const QString& text : DayTexts(shown, step == 1)) {
            if (const double width = widthOf(text); width <= room) {
                labels.push_back({.left = left, .width = width, .text = text});
                break;
            }
        }
    }
    return labels;
}

std::vector<PlacedText> HourLabels(DateTime begin, const TimeScale& scale,
                                   std::span<const PlacedText> chips, const TextWidth& widthOf) {
    std::vector<PlacedText> labels;
    const double width = widthOf(QStringLiteral("00:00"));
    const auto step = HourStep(scale.perSecond, width);
    if (!step) {
        return labels;
    }
    for (const std::int64_t second : GridSeconds(begin, scale, *step)) {
        const double middle = scale.X(static_cast<double>(second));
        PlacedText label{.left = std::clamp(middle - width / 2, scale.left,
                                            std::max(scale.left, scale.right - width)),
                         .width = width,
                         .text = ShortTime(begin + second)};
        const auto touches = [&](const PlacedText& other) { return label.Touches(other, kGap); };
        if ((labels.empty() || !touches(labels.back())) && std::ranges::none_of(chips, touches)) {
            labels.push_back(std::move(label));
        }
    }
    return labels;
}

std::vector<NightBand> NightBands(std::span<const cSchlafzeit> nights, DateTime begin,
                                  const TimeScale& scale, const TextWidth& widthOf) {
    std::vector<NightBand> bands;
    for (const auto& [start, end] : Unite(nights)) {
        const double from = scale.X(static_cast<double>(start.Seconds() - begin.Seconds()));
        const double until = scale.X(static_cast<double>(end.Seconds() - begin.Seconds()));
        if (until <= scale.left || from >= scale.right) {
            continue;
        }
        NightBand band{.from = std::max(from, scale.left), .until = std::min(until, scale.right)};
        for (const QString& text : NightTexts(start, end)) {
            if (band.label.isEmpty() && widthOf(text) + 2 * kGap <= band.until - band.from) {
                band.label = text;
            }
        }
        bands.push_back(std::move(band));
    }
    return bands;
}

std::vector<std::optional<PlacedText>> PlaceChips(std::span<const ChipLine> lines,
                                                  const TimeScale& scale,
                                                  const TextWidth& widthOf) {
    std::vector<std::optional<PlacedText>> placed;
    for (const ChipLine& line : lines) {
        placed.emplace_back();
        if (!scale.Shows(line.x, line.x)) {
            continue;
        }
        const double width = widthOf(line.text) + 2 * kChipMargin;
        const double last = std::max(scale.left, scale.right - width);
        for (const double left : {line.x - width / 2, line.x - width, line.x}) {
            const PlacedText chip{
                .left = std::clamp(left, scale.left, last), .width = width, .text = line.text};
            const bool isFree =
                std::ranges::none_of(placed, [&](const std::optional<PlacedText>& other) {
                    return other && other->Touches(chip, 1);
                });
            if (isFree) {
                placed.back() = chip;
                break;
            }
        }
    }
    return placed;
}

}  // namespace tarvelin
