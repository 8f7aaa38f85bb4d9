// Paints the bar.
#include "ui/workbench/NightBar.h"

#include <QPainter>
#include <algorithm>

#include "ui/look/Icons.h"
#include "ui/look/WorkbenchColors.h"

namespace tarvelin {

namespace {

constexpr double kFirstHour = 18;
constexpr double kLastHour = 36;
constexpr double kMinutesPerHour = 60;
constexpr double kNoon = 12;
constexpr double kDay = 24;

}  // namespace

NightBar::NightBar(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void NightBar::ShowNight(const std::optional<NightTimes>& night) {
    m_night = night;
    update();
}

QSize NightBar::sizeHint() const {
    constexpr int kWidth = 118;
    constexpr int kHeight = 16;
    return {kWidth, kHeight};
}

int NightBar::ColumnOf(double hour) const {
    const double share =
        (std::clamp(hour, kFirstHour, kLastHour) - kFirstHour) / (kLastHour - kFirstHour);
    return static_cast<int>(share * width());
}

void NightBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const WorkbenchColors colors = ColorsFor(palette());
    painter.fillRect(rect(), colors[Color::Lane]);
    painter.setPen(colors[Color::Line]);
    for (const double hour : {kDay, kDay + 6}) {
        painter.drawLine(ColumnOf(hour), 0, ColumnOf(hour), height());
    }
    if (!m_night || m_night->from == m_night->to) {
        return;
    }
    const double from = m_night->from / kMinutesPerHour;
    const double begin = from + (from < kNoon ? kDay : 0);
    const double length = (m_night->to - m_night->from) / kMinutesPerHour;
    const double end = begin + length + (length < 0 ? kDay : 0);
    const QRect night(ColumnOf(begin), 0, ColumnOf(end) - ColumnOf(begin), height());
    painter.fillRect(night, colors[Color::NightChip]);
    constexpr int kSymbol = 12;
    if (night.width() >= kSymbol) {
        PaintSymbol(
            painter, Symbol::Sleep,
            QRect(night.center() - QPoint(kSymbol / 2, kSymbol / 2 - 1), QSize(kSymbol, kSymbol)),
            colors[Color::NightText]);
    }
}

}  // namespace tarvelin
