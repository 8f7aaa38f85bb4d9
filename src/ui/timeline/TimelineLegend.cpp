// Collects and paints the entries.
#include "ui/timeline/TimelineLegend.h"

#include <algorithm>
#include <set>

#include "simulation/RunTexts.h"
#include "ui/timeline/HatchLines.h"

namespace tarvelin {

namespace {

constexpr double kSwatchWidth = 26;
constexpr double kSwatchHeight = 12;
constexpr double kGap = 4;
constexpr double kBetween = 10;
constexpr double kBetweenGroups = 10;

void PaintSwatch(const TimelineCanvas& canvas, const LegendEntry& entry, const QRectF& swatch) {
    QPainter& painter = canvas.Painter();
    switch (entry.sign) {
        case LegendEntry::Sign::Wait: {
            canvas.Fill(swatch, entry.look.ground);
            PaintHatching(painter, entry.look.hatching, swatch, swatch.left(),
                          canvas[entry.look.hatch]);
            const double side = swatch.height();
            const QRectF middle(swatch.center().x() - side / 2 - 1, swatch.top(), side + 2, side);
            canvas.Fill(middle, entry.look.ground);
            canvas.Sign(middle.left() + 1, middle.top(), side, entry.look.symbol,
                        entry.look.symbolColor);
            break;
        }
        case LegendEntry::Sign::Bar:
            canvas.Fill(swatch, Color::Bar);
            canvas.Frame(swatch, Color::BarEdge);
            break;
        case LegendEntry::Sign::Deficit:
            canvas.Fill(swatch, Color::DeficitTint);
            PaintHatching(painter, Hatching::Falling, swatch, swatch.left(),
                          canvas[Color::DeficitHatch]);
            break;
        case LegendEntry::Sign::Dashed:
            painter.setPen(DashedPen(canvas[entry.color]));
            painter.drawLine(QPointF(swatch.left(), swatch.center().y()),
                             QPointF(swatch.right(), swatch.center().y()));
            break;
    }
}

}  // namespace

std::vector<LegendEntry> LegendOf(const TimelineContent& content, const QString& barText) {
    const RunTrace& run = *content.run;
    std::set<Symbol> waits;
    for (const StartEvent& start : run.starts) {
        if (!WaitText(run, start).empty()) {
            waits.insert(LookOf(run, start).symbol);
        }
    }
    std::vector<LegendEntry> entries;
    for (const WaitLook& look : WaitLooks()) {
        if (waits.contains(look.symbol)) {
            entries.push_back({.sign = LegendEntry::Sign::Wait,
                               .look = look,
                               .text = QString::fromUtf8(look.name)});
        }
    }
    entries.push_back({.sign = LegendEntry::Sign::Bar, .text = barText});
    if (std::ranges::any_of(run.curve, [](const HistoryPoint& point) {
            return point.EnergieProduktion < point.EnergieVerbrauch;
        })) {
        entries.push_back(
            {.sign = LegendEntry::Sign::Deficit, .text = QStringLiteral("Energie fehlt")});
    }
    for (const DashedRun& other : content.others) {
        entries.push_back(
            {.sign = LegendEntry::Sign::Dashed, .text = other.name, .color = other.color});
    }
    return entries;
}

double PaintLegend(const TimelineCanvas& canvas, const std::vector<LegendEntry>& entries,
                   const QRectF& rect) {
    const auto widthOf = [&](const LegendEntry& entry, bool words) {
        return kSwatchWidth + (words ? kGap + canvas.WidthOf(entry.text) : 0);
    };
    double whole = kBetweenGroups;
    for (const LegendEntry& entry : entries) {
        whole += widthOf(entry, true) + kBetween;
    }
    const bool words = whole <= rect.width();
    double x = rect.left();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const LegendEntry& entry = entries[i];
        // Reasons and signs are two groups.
        if (i > 0 && entry.sign != LegendEntry::Sign::Wait &&
            entries[i - 1].sign == LegendEntry::Sign::Wait) {
            canvas.Fill(QRectF(x, rect.center().y() - kSwatchHeight / 2, 1, kSwatchHeight),
                        Color::LineStrong);
            x += kBetweenGroups;
        }
        PaintSwatch(canvas, entry,
                    QRectF(x, rect.center().y() - kSwatchHeight / 2, kSwatchWidth, kSwatchHeight));
        if (words) {
            canvas.Text(x + kSwatchWidth + kGap, rect.top(), rect.height(), entry.text,
                        Color::Text);
        }
        x += widthOf(entry, words) + kBetween;
    }
    return x;
}

}  // namespace tarvelin
