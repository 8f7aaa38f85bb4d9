// Lays out the poster from top to bottom.
#include "ui/timeline/PlanPoster.h"

#include <QPainter>
#include <algorithm>

#include "model/ItemTable.h"
#include "simulation/MomentState.h"
#include "simulation/ResultTexts.h"
#include "simulation/RunTexts.h"
#include "ui/look/WaitLook.h"
#include "ui/timeline/TimelineLegend.h"
#include "ui/timeline/TimelinePainter.h"
#include "ui/widgets/Controls.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr double kWidth = 1200;
constexpr double kMargin = 24;
constexpr double kInner = kWidth - 2 * kMargin;
constexpr double kGap = 4;
/// Type sizes of 8, 9, 11 and 20 points.
constexpr int kCaption = 11;
constexpr int kUsual = 12;
constexpr int kHeading = 15;
constexpr int kTitle = 27;

constexpr double kIcon = 56;
constexpr double kTimelineTop = 100;
constexpr double kTimelineHeight = 392;
constexpr double kLegend = 36;
constexpr double kTableTop = kTimelineTop + kTimelineHeight + kLegend;

constexpr std::size_t kColumns = 3;
constexpr double kBetweenColumns = 20;
constexpr double kColumn = (kInner - (kColumns - 1) * kBetweenColumns) / kColumns;
constexpr double kHead = 22;
constexpr double kRow = 22;
constexpr int kRowPicture = 18;
/// From a column's left edge.
constexpr double kNumberRight = 21;
constexpr double kPictureLeft = 24;
constexpr double kNameLeft = 45;
constexpr double kStartRight = 296;
constexpr double kWaitLeft = 301;

constexpr int kLevelPicture = 40;
constexpr double kLevelApart = 48;
constexpr std::size_t kLevelsInLine = 15;
constexpr double kEndHead = 36;
constexpr double kEndLine = 18;
constexpr double kFoot = 28;
constexpr double kStocksLeft = 770;

/// Pictures have more pixels than the poster, for formats that are scaled and printed.
constexpr int kSharpness = 2;

}  // namespace

PlanPoster::PlanPoster(const RunTrace& run, const Parts& parts)
    : m_parts(parts),
      m_small(ScaledPictures(parts.pictures, kSharpness * kLanePicture)),
      m_large(ScaledPictures(parts.pictures, kSharpness * kLevelPicture)),
      m_rows(PosterRows(run)) {
    m_content.run = run;
    m_content.names = false;
    TimelineSpace space = TimelinePainter::SpaceIn(
        QRectF(kMargin, kTimelineTop, kInner, kTimelineHeight), LookWith(kCaption).font);
    space.legend = false;
    space.scrollBar = false;
    m_timeline = TimelineRows::In(space);
}

TimelineLook PlanPoster::LookWith(int pixels, bool bold) const {
    QFont font = m_parts.font;
    font.setPixelSize(pixels);
    font.setBold(bold);
    return {
        .colors = WorkbenchColors(WorkbenchColors::Set::Light), .font = font, .pictures = m_small};
}

std::size_t PlanPoster::RowsPerColumn() const {
    return std::max<std::size_t>(1, (m_rows.size() + kColumns - 1) / kColumns);
}

double PlanPoster::EndTop() const {
    return kTableTop + kHead + kRow * static_cast<double>(RowsPerColumn()) + kMargin;
}

std::vector<ItemId> PlanPoster::LevelsReached() const {
    std::vector<ItemId> items;
    for (const ItemRow& row : ItemTable()) {
        if (m_content.run->end.GetStufe(row.item) > 0) {
            items.push_back(row.item);
        }
    }
    return items;
}

QSize PlanPoster::Size() const {
    const std::size_t lines = (LevelsReached().size() + kLevelsInLine - 1) / kLevelsInLine;
    const double levels =
        std::max(3 * kEndLine, static_cast<double>(lines) * kLevelApart) + kEndHead;
    return {static_cast<int>(kWidth), static_cast<int>(EndTop() + levels + kFoot)};
}

void PlanPoster::Paint(QPainter& painter) const {
    const TimelineLook usual = LookWith(kUsual);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    {
        const TimelineCanvas canvas(painter, usual);
        canvas.Fill(QRectF(QPointF(), Size()), Color::Background);
    }
    const auto paint = [&](const TimelineLook& look,
                           void (PlanPoster::*part)(const TimelineCanvas&)
                               const) { (this->*part)(TimelineCanvas(painter, look)); };
    const TimelineLook caption = LookWith(kCaption);
    paint(usual, &PlanPoster::PaintHead);
    paint(caption, &PlanPoster::PaintTimeline);
    paint(caption, &PlanPoster::PaintLegendLine);
    paint(usual, &PlanPoster::PaintTable);
    paint(usual, &PlanPoster::PaintEnd);
}

void PlanPoster::PaintHead(const TimelineCanvas& canvas) const {
    if (!m_parts.icon.isNull()) {
        canvas.Painter().drawPixmap(QRectF(kMargin, kMargin, kIcon, kIcon), m_parts.icon,
                                    QRectF(m_parts.icon.rect()));
    }
    const double left = kMargin + kIcon + 16;
    constexpr double kSubtitleTop = 58;
    constexpr double kFiguresTop = 32;
    canvas.Text(left, kSubtitleTop, kEndLine, PosterSubtitle(m_content.run->conditions),
                Color::Weak);
    double right = kWidth - kMargin;
    const TimelineLook valueLook = LookWith(kHeading, true);
    auto figures = PosterFigures(*m_content.run);
    for (const PosterFigure& figure : std::vector(figures.rbegin(), figures.rend())) {
        const TimelineCanvas value(canvas.Painter(), valueLook);
        value.RightText(right, kFiguresTop + kEndLine, kEndLine, figure.value, Color::Text);
        const double width = value.WidthOf(figure.value);
        const TimelineLook captionLook = LookWith(kCaption);
        const TimelineCanvas caption(canvas.Painter(), captionLook);
        caption.RightText(right, kFiguresTop, kEndLine, figure.caption, Color::Weak);
        right -= std::max(width, caption.WidthOf(figure.caption)) + 28;
    }
    const TimelineLook titleLook = LookWith(kTitle, true);
    const TimelineCanvas title(canvas.Painter(), titleLook);
    constexpr double kTitleHeight = 34;
    const QString text = m_parts.planName.isEmpty()
                             ? QStringLiteral("Eröffnung")
                             : QStringLiteral("Eröffnung „%1“").arg(m_parts.planName);
    title.Text(left, kMargin, kTitleHeight,
               QFontMetricsF(titleLook.font).elidedText(text, Qt::ElideRight, right - left),
               Color::Text);
}

void PlanPoster::PaintTimeline(const TimelineCanvas& canvas) const {
    const TimeScale scale{.left = m_timeline.plot.left(),
                          .right = m_timeline.plot.right(),
                          .first = 0,
                          .perSecond = WholePlanScale(m_content, m_timeline)};
    const TimelineLayout layout(m_content, m_timeline, scale, WidthsOf(canvas.Look().font));
    const TimelinePainter timeline(canvas, m_content, layout);
    timeline.PaintPlot();
    timeline.PaintColumns(std::nullopt, Color::Background);
    timeline.PaintHours(std::nullopt);
}

void PlanPoster::PaintLegendLine(const TimelineCanvas& canvas) const {
    const QRectF line(m_timeline.plot.left(), kTimelineTop + kTimelineHeight,
                      m_timeline.plot.width(), kLegend);
    const QString caption = QStringLiteral("Wartet auf:");
    canvas.Text(line.left(), line.top(), line.height(), caption, Color::Weak);
    static_cast<void>(PaintLegend(canvas, LegendOf(m_content, QStringLiteral("baut")),
                                  line.adjusted(canvas.WidthOf(caption) + 2 * kGap, 0, 0, 0)));
}

void PlanPoster::PaintTable(const TimelineCanvas& canvas) const {
    const std::size_t perColumn = RowsPerColumn();
    for (std::size_t column = 0; column * perColumn < std::max<std::size_t>(1, m_rows.size());
         ++column) {
        const double left = kMargin + static_cast<double>(column) * (kColumn + kBetweenColumns);
        PaintTableHead(canvas, left);
        for (std::size_t i = 0; i < perColumn && column * perColumn + i < m_rows.size(); ++i) {
            const PosterRow& row = m_rows[column * perColumn + i];
            const QRectF place(left, kTableTop + kHead + kRow * static_cast<double>(i), kColumn,
                               kRow);
            if (i % 2 == 1) {
                canvas.Fill(place, Color::Alternate);
            }
            if (row.newDay && i > 0) {
                canvas.Fill(QRectF(place.left(), place.top(), place.width(), 1), Color::Text);
            }
            PaintRow(canvas, row, place, row.newDay || i == 0);
        }
    }
}

void PlanPoster::PaintTableHead(const TimelineCanvas& canvas, double left) const {
    const TimelineLook look = LookWith(kCaption);
    const TimelineCanvas caption(canvas.Painter(), look);
    const double top = kTableTop;
    caption.RightText(left + kNumberRight, top, kHead, QStringLiteral("Nr."), Color::Weak);
    caption.Text(left + kNameLeft, top, kHead, QStringLiteral("Auftrag"), Color::Weak);
    caption.RightText(left + kStartRight, top, kHead, QStringLiteral("Start"), Color::Weak);
    caption.Text(left + kWaitLeft, top, kHead, QStringLiteral("Wartete auf"), Color::Weak);
    canvas.Fill(QRectF(left, top + kHead - 1, kColumn, 1), Color::LineStrong);
}

void PlanPoster::PaintRow(const TimelineCanvas& canvas, const PosterRow& row, const QRectF& place,
                          bool withDay) const {
    const double top = place.top();
    const double left = place.left();
    canvas.RightText(left + kNumberRight, top, kRow, row.number, Color::Weak);
    if (row.picture) {
        const QPixmap& picture = m_small[*row.picture];
        canvas.Painter().drawPixmap(
            QRectF(left + kPictureLeft, top + (kRow - kRowPicture) / 2, kRowPicture, kRowPicture),
            picture, QRectF(picture.rect()));
    } else {
        canvas.Sign(left + kPictureLeft + (kRowPicture - kSymbolSide) / 2.0, top, kRow,
                    Symbol::Energy, Color::Energy);
    }
    const QFontMetricsF metrics(canvas.Look().font);
    const QString& start = withDay ? row.start : row.timeOfDay;
    const double nameRoom = kStartRight - kNameLeft - metrics.horizontalAdvance(start) - kGap;
    canvas.Text(left + kNameLeft, top, kRow,
                metrics.elidedText(row.name, Qt::ElideMiddle, nameRoom), Color::Text);
    canvas.RightText(left + kStartRight, top, kRow, start, Color::Text);
    if (!row.wait.isEmpty()) {
        canvas.Sign(left + kWaitLeft, top, kRow, row.waitSymbol, row.waitColor);
        const double waitLeft = kWaitLeft + kSymbolSide + kGap;
        canvas.Text(left + waitLeft, top, kRow,
                    metrics.elidedText(row.wait, Qt::ElideMiddle, kColumn - waitLeft), Color::Text);
    }
}

void PlanPoster::PaintEnd(const TimelineCanvas& canvas) const {
    const double top = EndTop();
    canvas.Fill(QRectF(kMargin, top, kInner, 1), Color::Text);
    canvas.BoldText(kMargin, top + kGap, kEndHead - kGap, QStringLiteral("Am Ende"), Color::Text);
    PaintLevels(canvas, top + kEndHead);
    PaintStocks(canvas, top + 2 * kGap);
    const TimelineLook look = LookWith(kCaption);
    const TimelineCanvas caption(canvas.Painter(), look);
    const double foot = Size().height() - kFoot;
    caption.Text(
        kMargin, foot, kFoot,
        m_content.run->end.IsAtEndOfClock()
            ? ToQString(BeyondClockText())
            : QStringLiteral("Gespielt mit Tarvelin, auf die Sekunde genau. Zeiten in Ortszeit."),
        Color::Weak);
    if (!m_content.run->end.IsAtEndOfClock()) {
        caption.RightText(kWidth - kMargin, foot, kFoot,
                          QStringLiteral("Schlaf ist grau hinterlegt, ein Bild mit „3×“ steht für "
                                         "drei Aufträge kurz nacheinander."),
                          Color::Weak);
    }
}

void PlanPoster::PaintLevels(const TimelineCanvas& canvas, double top) const {
    const auto items = LevelsReached();
    for (std::size_t i = 0; i < items.size(); ++i) {
        const std::size_t line = i / kLevelsInLine;
        const QRectF place(kMargin + kLevelApart * static_cast<double>(i % kLevelsInLine),
                           top + kLevelApart * static_cast<double>(line), kLevelPicture,
                           kLevelPicture);
        const QPixmap& picture = m_large[items[i]];
        canvas.Painter().drawPixmap(place, picture, QRectF(picture.rect()));
        const QString level = QString::number(m_content.run->end.GetStufe(items[i]));
        const double width = canvas.WidthOf(level) + 2 * kGap;
        const QRectF badge(place.right() + 2 - width, place.bottom() + 2 - canvas.Line(), width,
                           canvas.Line());
        canvas.Fill(badge, Color::Badge);
        canvas.Text(badge.left() + kGap, badge.top(), badge.height(), level, Color::BadgeText);
    }
}

void PlanPoster::PaintStocks(const TimelineCanvas& canvas, double top) const {
    const RunTrace& run = *m_content.run;
    const HistoryPoint& point = run.curve.back();
    constexpr double kName = 18;
    constexpr double kAmountRight = 150;
    constexpr double kRateRight = 220;
    constexpr double kEnergy = 244;
    constexpr double kValue = 326;
    double line = top;
    for (const Resource resource : kResources) {
        const WaitLook look = LookOf(resource);
        canvas.Sign(kStocksLeft, line, kEndLine, look.symbol, look.symbolColor);
        canvas.Text(kStocksLeft + kName, line, kEndLine, ToQString(kResourceNames[resource]),
                    Color::Text);
        const QString amount = ToQString(GroupedText(run.end.stock[resource].ToDouble()));
        canvas.BoldText(kStocksLeft + kAmountRight - canvas.BoldWidthOf(amount), line, kEndLine,
                        amount, Color::Text);
        canvas.RightText(kStocksLeft + kRateRight, line, kEndLine,
                         ToQString(RateText(point.ProStunde[resource])), Color::Weak);
        line += kEndLine;
    }
    const double left = kStocksLeft + kEnergy;
    canvas.Sign(left, top, kEndLine, Symbol::Energy, Color::Energy);
    canvas.Text(left + kName, top, kEndLine, QStringLiteral("Energie"), Color::Text);
    canvas.BoldText(kStocksLeft + kValue, top, kEndLine, ToQString(EnergyText(point)), Color::Text);
    // "Faktor" and its value are two words here.
    const QStringList factor = ToQString(FactorText(point)).split(QLatin1Char(' '));
    if (factor.size() == 2) {
        canvas.Sign(left, top + kEndLine, kEndLine, Symbol::Falls, Color::Deficit);
        canvas.Text(left + kName, top + kEndLine, kEndLine, factor[0], Color::Deficit);
        canvas.BoldText(kStocksLeft + kValue, top + kEndLine, kEndLine, factor[1], Color::Deficit);
    }
    canvas.Text(left + kName, top + 2 * kEndLine, kEndLine, QStringLiteral("mit Vorrat"),
                Color::Weak);
    canvas.Text(kStocksLeft + kValue, top + 2 * kEndLine, kEndLine,
                ToQString(PointsWithStockText(run.end)) + QStringLiteral(" Punkte"), Color::Weak);
}

}  // namespace tarvelin
