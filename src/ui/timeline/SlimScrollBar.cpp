// Paints groove and handle where the style has them.
#include "ui/timeline/SlimScrollBar.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStyleOptionSlider>
#include <algorithm>

#include "ui/look/WorkbenchColors.h"

namespace tarvelin {

namespace {

/// The arrows have no room, so the groove is as long as the bar.
class NoArrows : public QProxyStyle {
  public:
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override {
        const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (control != CC_ScrollBar || slider == nullptr) {
            return QProxyStyle::subControlRect(control, option, part, widget);
        }
        const int length = slider->rect.width();
        const auto range = static_cast<double>(slider->maximum) - slider->minimum;
        constexpr int kShortest = 24;
        const int handle = range <= 0 ? length
                                      : std::clamp(static_cast<int>(length * slider->pageStep /
                                                                    (range + slider->pageStep)),
                                                   std::min(kShortest, length), length);
        const int from = sliderPositionFromValue(slider->minimum, slider->maximum,
                                                 slider->sliderPosition, length - handle);
        const int height = slider->rect.height();
        switch (part) {
            case SC_ScrollBarGroove:
                return {0, 0, length, height};
            case SC_ScrollBarSlider:
                return {from, 0, handle, height};
            case SC_ScrollBarSubPage:
                return {0, 0, from, height};
            case SC_ScrollBarAddPage:
                return {from + handle, 0, length - from - handle, height};
            default:
                return {};
        }
    }
};

}  // namespace

SlimScrollBar::SlimScrollBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
    auto* const style = new NoArrows;
    style->setParent(this);
    setStyle(style);
    setFocusPolicy(Qt::NoFocus);
}

void SlimScrollBar::paintEvent(QPaintEvent* /*event*/) {
    const WorkbenchColors colors = ColorsFor(palette());
    QStyleOptionSlider option;
    initStyleOption(&option);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const auto draw = [&](const QRect& rect, Color color) {
        const double radius = rect.height() / 2.0;
        painter.setBrush(colors[color]);
        painter.drawRoundedRect(rect, radius, radius);
    };
    draw(rect(), Color::Line);
    draw(style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this),
         Color::LineStrong);
}

}  // namespace tarvelin
