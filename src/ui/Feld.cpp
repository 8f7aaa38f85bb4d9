// Colour, place and closing of a panel.
#include "ui/Feld.h"

namespace tarvelin {

Feld::Feld(const QString& name, const QString& titel, const QRect& twips, QWidget* parent)
    : Gruppe(name, titel, parent) {
    setGeometry(Pixel(twips.x()), Pixel(twips.y()), Pixel(twips.width()), Pixel(twips.height()));
    QPalette farben = palette();
    farben.setColor(QPalette::Window, Qt::red);
    setPalette(farben);
    setAutoFillBackground(true);
}

QPushButton* Feld::NeuerHideKnopf(const QString& name) {
    QPushButton* const knopf = NeuerKnopf(name, QStringLiteral("Hide"), this);
    QPalette farben = knopf->palette();
    farben.setColor(QPalette::Button, Qt::red);
    knopf->setPalette(farben);
    connect(knopf, &QPushButton::clicked, this, &QWidget::hide);
    return knopf;
}

}  // namespace tarvelin
