// Words and layout of the card.
#include "ui/timeline/CursorCard.h"

#include <algorithm>

#include "simulation/MomentState.h"
#include "simulation/RunTexts.h"
#include "simulation/StatusTexts.h"
#include "ui/look/ShortDays.h"
#include "ui/look/WaitLook.h"
#include "ui/widgets/Controls.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr double kWidth = 228;
constexpr double kLine = 15;
constexpr double kMargin = 8;
constexpr double kBesideCursor = 12;

/// "2 T 18:00", "18:00".
QString AfterText(SimTime moment) {
    const QString text = WithShortDays(ToQString(TimeSpanText(moment.Seconds())));
    return QStringLiteral("nach ") + text.left(text.lastIndexOf(QLatin1Char(':')));
}

/// With the weekday unless it is the day of `today`.
QString UntilText(DateTime until, DateTime today) {
    const std::string time = TimeOfDayText(until);
    return ToQString(StartOfDay(until) == StartOfDay(today)
                         ? time
                         : std::string(WeekdayShort(until)) + " " + time);
}

void AddBuilding(std::vector<CardLine>& lines, const RunTrace& run, const MomentState& state) {
    const DateTime now = run.conditions.WallClock(state.moment);
    QString caption = QStringLiteral("Baut");
    for (const StartEvent& start : state.building) {
        lines.push_back({.caption = caption,
                         .words = ToQString(OrderText(start)),
                         .right = QStringLiteral("bis ") +
                                  UntilText(run.conditions.WallClock(start.finish), now)});
        caption.clear();
    }
    if (state.building.empty()) {
        lines.push_back({.caption = caption, .words = QStringLiteral("nichts")});
    }
}

void AddWaiting(std::vector<CardLine>& lines, const RunTrace& run, const MomentState& state) {
    if (!state.waiting) {
        lines.push_back({.caption = QStringLiteral("Wartet"), .words = QStringLiteral("nichts")});
        return;
    }
    const StartEvent& next = *state.waiting;
    lines.push_back({.caption = QStringLiteral("Wartet"), .words = ToQString(OrderText(next))});
    lines.push_back({.words = QStringLiteral("auf ") + ToQString(StillMissingText(run, state)) +
                              QStringLiteral(", bis ") +
                              UntilText(run.conditions.WallClock(next.start),
                                        run.conditions.WallClock(state.moment))});
}

void AddFigures(std::vector<CardLine>& lines, const MomentState& state) {
    for (const Resource resource : kResources) {
        const WaitLook look = LookOf(resource);
        lines.push_back({.caption = ToQString(kResourceNames[resource]),
                         .figure = ToQString(GroupedText(state.stock[resource].ToDouble())),
                         .right = ToQString(RateText(state.point.ProStunde[resource])),
                         .symbol = look.symbol,
                         .symbolColor = look.symbolColor});
    }
    lines.push_back({.caption = QStringLiteral("Energie"),
                     .figure = ToQString(EnergyText(state.point)),
                     .right = ToQString(FactorText(state.point)),
                     .rightColor = Color::Deficit,
                     .symbol = Symbol::Energy,
                     .symbolColor = Color::Energy});
}

/// Where the words of the lines stand.
class CardLayout {
  public:
    CardLayout(const TimelineCanvas& canvas, const std::vector<CardLine>& lines)
        : m_canvas(canvas), m_line(std::max(kLine, canvas.Line() + 1)) {
        for (const CardLine& line : lines) {
            const double caption = canvas.WidthOf(line.caption) + 2 * kGap;
            if (!line.words.isEmpty()) {
                m_words = std::max(m_words, caption);
            } else if (!line.figure.isEmpty()) {
                m_figures = std::max(m_figures, kSymbolSide + kGap + caption);
            }
            m_figure = std::max(m_figure, canvas.BoldWidthOf(line.figure));
        }
        m_width = kWidth;
        for (const CardLine& line : lines) {
            const double right = line.right.isEmpty() ? 0 : canvas.WidthOf(line.right) + 2 * kGap;
            const double left = !line.words.isEmpty()    ? m_words + canvas.WidthOf(line.words)
                                : !line.figure.isEmpty() ? m_figures + m_figure
                                                         : canvas.BoldWidthOf(line.caption);
            m_width = std::max(m_width, 2 * kMargin + left + right);
        }
        m_height = m_line * static_cast<double>(lines.size()) + 2 * kMargin - 2;
    }

    [[nodiscard]] QSizeF Size() const { return {m_width, m_height}; }

    void Paint(const std::vector<CardLine>& lines, const QRectF& card) const {
        double top = card.top() + kMargin - 1;
        const double left = card.left() + kMargin;
        for (const CardLine& line : lines) {
            const double sign = line.symbol ? kSymbolSide + kGap : 0;
            if (line.symbol) {
                m_canvas.Sign(left, top, m_line, *line.symbol, line.symbolColor);
            }
            if (line.words.isEmpty() && line.figure.isEmpty()) {
                m_canvas.BoldText(left, top, m_line, line.caption, Color::Text);
            } else {
                m_canvas.Text(left + sign, top, m_line, line.caption,
                              line.symbol ? Color::Text : Color::Weak);
            }
            m_canvas.Text(left + m_words, top, m_line, line.words, Color::Text);
            m_canvas.BoldText(left + m_figures + m_figure - m_canvas.BoldWidthOf(line.figure), top,
                              m_line, line.figure, Color::Text);
            m_canvas.RightText(card.right() - kMargin, top, m_line, line.right, line.rightColor);
            top += m_line;
        }
    }

  private:
    static constexpr double kGap = 4;

    const TimelineCanvas& m_canvas;
    double m_line;
    /// Where words and figures begin, and how wide the widest figure is.
    double m_words = 0;
    double m_figures = 0;
    double m_figure = 0;
    double m_width = 0;
    double m_height = 0;
};

}  // namespace

std::vector<CardLine> CardLines(const RunTrace& run, SimTime moment) {
    const MomentState state = StateAt(run, moment);
    std::vector<CardLine> lines{
        {.caption = ToQString(ShortDateTimeText(run.conditions.WallClock(moment))),
         .right = AfterText(moment)}};
    AddBuilding(lines, run, state);
    AddWaiting(lines, run, state);
    AddFigures(lines, state);
    return lines;
}

void PaintCard(const TimelineCanvas& canvas, const std::vector<CardLine>& lines, double x,
               const QRectF& plot, const QRectF& bounds) {
    const CardLayout layout(canvas, lines);
    const QSizeF size = layout.Size();
    const bool isRight = plot.right() - x >= x - plot.left();
    const double left = isRight ? x + kBesideCursor : x - kBesideCursor - size.width();
    const double last = std::max(bounds.left(), bounds.right() - size.width());
    const QRectF card(QPointF(std::clamp(left, bounds.left(), last),
                              std::max(bounds.top(), plot.bottom() - size.height())),
                      size);
    canvas.Fill(card, Color::Background);
    canvas.Frame(card, Color::Text);
    layout.Paint(lines, card);
}

}  // namespace tarvelin
