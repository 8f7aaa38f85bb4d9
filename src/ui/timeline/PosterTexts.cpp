// Puts together the words of a poster.
#include "ui/timeline/PosterTexts.h"

#include <QStringList>
#include <algorithm>

#include "simulation/Comparison.h"
#include "simulation/ResultTexts.h"
#include "simulation/RunTexts.h"
#include "simulation/StatusTexts.h"
#include "ui/look/WaitLook.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

QString ShortTime(DateTime time) {
    return ToQString(ShortTimeOfDayText(time));
}

QString Degrees(int temperature) {
    return QString::number(temperature).replace(QLatin1Char('-'), QStringLiteral("−"));
}

/// One rule where all windows follow it.
QString SleepText(const std::vector<cSchlafzeit>& windows) {
    if (windows.empty()) {
        return QStringLiteral("ohne Schlaf");
    }
    const auto text = [](const cSchlafzeit& window) {
        return QStringLiteral("Schlaf %1 bis %2")
            .arg(ShortTime(window.Startzeit()), ShortTime(window.Endzeit()));
    };
    const QString first = text(windows.front());
    const bool alike = std::ranges::all_of(
        windows, [&](const cSchlafzeit& window) { return text(window) == first; });
    return alike ? first : QStringLiteral("%1 Schlafzeiten").arg(windows.size());
}

}  // namespace

std::vector<PosterRow> PosterRows(const RunTrace& run) {
    std::vector<PosterRow> rows;
    DateTime lastDay;
    for (const StartEvent& start : run.starts) {
        const DateTime moment = run.conditions.WallClock(start.start);
        const WaitLook look = LookOf(run, start);
        rows.push_back({.number = QString::number(start.row + 1),
                        .picture = start.order.kind == Order::Kind::Item
                                       ? std::optional(start.order.item)
                                       : std::nullopt,
                        .name = ToQString(OrderText(start)),
                        .start = ToQString(ShortDateTimeText(moment)),
                        .timeOfDay = ToQString(TimeOfDayText(moment)),
                        .wait = WaitText(run, start).empty() ? QString()
                                                             : ToQString(BriefWaitText(run, start)),
                        .waitSymbol = look.symbol,
                        .waitColor = look.symbolColor,
                        .newDay = StartOfDay(moment) != lastDay});
        lastDay = StartOfDay(moment);
    }
    return rows;
}

QString PosterSubtitle(const RunConditions& conditions) {
    // The coldest of a planet's temperatures is so far below the warmest.
    constexpr int kSpan = 40;
    return QStringList{
        QStringLiteral("Start %1 %2 %3")
            .arg(ToQString(WeekdayShort(conditions.StartDate)),
                 ToQString(DateText(conditions.StartDate)), ShortTime(conditions.StartDate)),
        QStringLiteral("Planet %1 bis %2 °C")
            .arg(Degrees(conditions.Temperatur - kSpan), Degrees(conditions.Temperatur)),
        QStringLiteral("Geschwindigkeit ×%1").arg(conditions.Speedfaktor),
        QStringLiteral("Klickpuffer %1 s").arg(conditions.KlickPuffer),
        SleepText(conditions.Schlafzeiten)}
        .join(QStringLiteral(" · "));
}

std::vector<PosterFigure> PosterFigures(const RunTrace& run) {
    const std::string end = ShortDateTimeText(run.conditions.WallClock(run.Duration()));
    constexpr int kSeconds = 3;
    return {{QStringLiteral("Dauer"), ToQString(TimeSpanText(run.Duration().Seconds()))},
            {QStringLiteral("Ende"), ToQString(end).chopped(kSeconds)},
            {QStringLiteral("Sitzungen"), QString::number(RunSummary::Of(run).sittings)},
            {QStringLiteral("Punkte"), ToQString(PointsText(run.end))}};
}

}  // namespace tarvelin
