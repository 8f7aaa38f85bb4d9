// The look of the workbench's buttons and inputs: flat, with an edge that can be seen.
#pragma once

#include <QProxyStyle>

namespace tarvelin {

class PlainStyle : public QProxyStyle {
    Q_OBJECT

  public:
    explicit PlainStyle(QObject* owner) { setParent(owner); }

    /// Gives it to the buttons and inputs in a window.
    void ApplyTo(const QWidget& window);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};

}  // namespace tarvelin
