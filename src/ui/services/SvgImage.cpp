// By the toolkit's module.
#include "ui/services/SvgImage.h"

#include <QBuffer>
#include <QSvgGenerator>

namespace tarvelin {

bool KannSvg() {
    return true;
}

QByteArray AlsSvg(const QSize& groesse, const std::function<void(QPainter&)>& male) {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    QSvgGenerator erzeuger;
    erzeuger.setOutputDevice(&puffer);
    erzeuger.setTitle(QStringLiteral("Tarvelin"));
    erzeuger.setSize(groesse);
    erzeuger.setViewBox(QRect(QPoint(), groesse));
    QPainter painter(&erzeuger);
    male(painter);
    painter.end();
    return bytes;
}

}  // namespace tarvelin
