// Draws what differs from the program's style.
#include "ui/workbench/PlainStyle.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOption>

#include "ui/look/WorkbenchColors.h"

namespace tarvelin {

namespace {

constexpr qreal kCorner = 3;

Color EdgeOf(const QStyleOption& option) {
    if ((option.state & QStyle::State_Enabled) == 0) {
        return Color::LineStrong;
    }
    return (option.state & QStyle::State_MouseOver) != 0 ? Color::Accent : Color::Edge;
}

void DrawEdge(QPainter& painter, const QRect& rect, const QStyleOption& option,
              const QBrush& ground = Qt::NoBrush) {
    constexpr qreal kHalf = 0.5;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(ColorsFor(option.palette)[EdgeOf(option)]);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect).adjusted(kHalf, kHalf, -kHalf, -kHalf), kCorner, kCorner);
    painter.restore();
}

template <class... Kinds>
bool IsOneOf(const QWidget& widget) {
    return ((qobject_cast<const Kinds*>(&widget) != nullptr) || ...);
}

}  // namespace

void PlainStyle::ApplyTo(const QWidget& window) {
    for (auto* const widget : window.findChildren<QWidget*>()) {
        if (IsOneOf<QPushButton, QLineEdit, QComboBox, QAbstractSpinBox, QCheckBox, QRadioButton>(
                *widget)) {
            widget->setStyle(this);
        }
    }
}

void PlainStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    if (element != CE_PushButtonBevel) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    constexpr int kPressed = 110;
    const QColor ground = option->palette.color(QPalette::Button);
    const bool isDown = (option->state & (State_Sunken | State_On)) != 0;
    DrawEdge(*painter, option->rect, *option, isDown ? ground.darker(kPressed) : ground);
}

void PlainStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_FrameLineEdit || element == PE_IndicatorCheckBox) {
        DrawEdge(*painter, option->rect, *option);
    } else if (element == PE_IndicatorRadioButton) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(ColorsFor(option->palette)[EdgeOf(*option)]);
        painter->drawEllipse(QRectF(option->rect).adjusted(1, 1, -1, -1));
        painter->restore();
    }
}

void PlainStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox || control == CC_SpinBox) {
        DrawEdge(*painter, option->rect, *option);
    }
}

}  // namespace tarvelin
