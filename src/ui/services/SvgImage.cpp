// SVG by the toolkit's module.
#include "ui/services/SvgImage.h"

#include <QBuffer>
#include <QSvgGenerator>

namespace tarvelin {

bool HasSvg() {
    return true;
}

QByteArray ToSvg(const QSize& size, const std::function<void(QPainter&)>& draw) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setTitle(QStringLiteral("Tarvelin"));
    // A pixel is that of a web page.
    constexpr int kDotsPerInch = 96;
    generator.setResolution(kDotsPerInch);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(), size));
    QPainter painter(&generator);
    draw(painter);
    painter.end();
    return bytes;
}

}  // namespace tarvelin
