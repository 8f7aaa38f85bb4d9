// Collects and paints the entries.
#include "ui/timeline/TimelineLegend.h"

#include <algorithm>

#include "ui/timeline/HatchLines.h"

namespace tarvelin {

namespace {

constexpr double kSwatchWidth = 26;
constexpr double kSwatchHeight = 12;
constexpr double kGap = 4;
constexpr double kBetween = 10;

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

std::vector<LegendEntry> LegendOf(const TimelineContent& content) {
    std::vector<LegendEntry> entries;
    const RunTrace& run = *content.run;
    for (const WaitLook& look : WaitLooks()) {
        if (std::ranges::any_of(
                run.starts, [&](const StartEvent& start) { return LookOf(run, start) == look; })) {
            entries.push_back({.sign = LegendEntry::Sign::Wait,
                               .look = look,
                               .text = QString::fromUtf8(look.name)});
        }
    }
    entries.push_back({.sign = LegendEntry::Sign::Bar, .text = QStringLiteral("geplant")});
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
    double x = rect.left();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const LegendEntry& entry = entries[i];
        // Reasons and signs are two groups.
        const bool isNewGroup = i > 0 && entry.sign != LegendEntry::Sign::Wait &&
                                entries[i - 1].sign == LegendEntry::Sign::Wait;
        const double left = x + (isNewGroup ? kBetween : 0);
        const double width = canvas.WidthOf(entry.text);
        if (left + kSwatchWidth + kGap + width > rect.right()) {
            break;
        }
        if (isNewGroup) {
            canvas.Fill(QRectF(x, rect.center().y() - kSwatchHeight / 2, 1, kSwatchHeight),
                        Color::LineStrong);
        }
        PaintSwatch(
            canvas, entry,
            QRectF(left, rect.center().y() - kSwatchHeight / 2, kSwatchWidth, kSwatchHeight));
        canvas.Text(left + kSwatchWidth + kGap, rect.top(), rect.height(), entry.text, Color::Text);
        x = left + kSwatchWidth + kGap + width + kBetween;
    }
    return x;
}

}  // namespace tarvelin
