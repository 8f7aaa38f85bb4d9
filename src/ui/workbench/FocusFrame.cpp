// Chooses the controls that get a frame, and paints it.
#include "ui/workbench/FocusFrame.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QRadioButton>

#include "ui/look/WorkbenchColors.h"

namespace tarvelin {

namespace {

constexpr int kWidth = 2;

/// The frame lies around the control.
class FrameStyle : public QProxyStyle {
  public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        return metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin
                   ? kWidth
                   : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

/// Lists and pictures show the focus themselves.
bool GetsFrame(const QWidget& widget) {
    return qobject_cast<const QPushButton*>(&widget) != nullptr ||
           qobject_cast<const QCheckBox*>(&widget) != nullptr ||
           qobject_cast<const QRadioButton*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr;
}

}  // namespace

FocusFrame::FocusFrame(QWidget* window) : QFocusFrame(window) {
    auto* const style = new FrameStyle;
    style->setParent(this);
    setStyle(style);
    hide();
    connect(qApp, &QApplication::focusChanged, this,
            [this, window](QWidget* /*before*/, QWidget* focused) {
                Follow(focused != nullptr && focused->window() == window ? focused : nullptr);
            });
}

void FocusFrame::Follow(QWidget* focused) {
    setWidget(focused != nullptr && GetsFrame(*focused) ? focused : nullptr);
}

void FocusFrame::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(QPen(ColorsFor(palette())[Color::Accent], kWidth, Qt::SolidLine, Qt::SquareCap,
                        Qt::MiterJoin));
    constexpr qreal kHalf = kWidth / 2.0;
    painter.drawRect(QRectF(rect()).adjusted(kHalf, kHalf, -kHalf, -kHalf));
}

}  // namespace tarvelin
