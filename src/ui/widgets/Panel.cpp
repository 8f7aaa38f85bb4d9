// Colour, place and closing of a panel.
#include "ui/widgets/Panel.h"

#include <QPainter>

namespace tarvelin {

namespace {

constexpr QColor kRand(110, 0, 0);
constexpr QColor kLicht(255, 150, 150);

}  // namespace

Feld::Feld(const QString& name, const QString& titel, const QRect& twips, QWidget* parent)
    : Gruppe(name, titel, parent) {
    setGeometry(Pixel(twips.x()), Pixel(twips.y()), Pixel(twips.width()), Pixel(twips.height()));
    QPalette farben = palette();
    farben.setColor(QPalette::Window, Qt::red);
    farben.setColor(QPalette::Mid, kRand);
    setPalette(farben);
    setAutoFillBackground(true);
}

void Feld::paintEvent(QPaintEvent* event) {
    Gruppe::paintEvent(event);
    // Where panels lie over each other, this tells them apart.
    QPainter painter(this);
    painter.setPen(Qt::black);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(kLicht);
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

QPushButton* Feld::NeuerHideKnopf(const QString& name) {
    QPushButton* const knopf = NeuerKnopf(name, QStringLiteral("Hide"), this);
    // The style alone would make the red paler.
    knopf->setStyleSheet(
        QStringLiteral("QPushButton { background: rgb(255, 0, 0); border: 1px solid rgb(110, 0, 0);"
                       " border-radius: 3px; }"
                       "QPushButton:focus { border: 2px solid black; }"
                       "QPushButton:pressed { background: rgb(200, 0, 0); }"));
    connect(knopf, &QPushButton::clicked, this, &QWidget::hide);
    return knopf;
}

}  // namespace tarvelin
