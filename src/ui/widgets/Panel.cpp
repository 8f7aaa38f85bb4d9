// Color, frame and button of a panel.
#include "ui/widgets/Panel.h"

#include <QPainter>

namespace tarvelin {

namespace {

constexpr QColor kMargin(110, 0, 0);
constexpr QColor kLight(255, 150, 150);

}  // namespace

Panel::Panel(const QString& name, const QString& title, const QRect& twips, QWidget* parent)
    : GroupBox(name, title, parent) {
    setGeometry(TwipsToPixels(twips.x()), TwipsToPixels(twips.y()), TwipsToPixels(twips.width()),
                TwipsToPixels(twips.height()));
    QPalette colors = palette();
    colors.setColor(QPalette::Window, Qt::red);
    colors.setColor(QPalette::Mid, kMargin);
    setPalette(colors);
    setAutoFillBackground(true);
}

void Panel::paintEvent(QPaintEvent* event) {
    GroupBox::paintEvent(event);
    // Sets overlapping panels apart.
    QPainter painter(this);
    painter.setPen(Qt::black);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(kLight);
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

QPushButton* Panel::NewHideButton(const QString& name) {
    QPushButton* const button = NewButton(name, QStringLiteral("Hide"), this);
    // The style would lighten the red.
    button->setStyleSheet(
        QStringLiteral("QPushButton { background: rgb(255, 0, 0); border: 1px solid rgb(110, 0, 0);"
                       " border-radius: 3px; }"
                       "QPushButton:focus { border: 2px solid black; }"
                       "QPushButton:pressed { background: rgb(200, 0, 0); }"));
    return button;
}

}  // namespace tarvelin
