// The three formats.
#include "ui/workbench/TimelinePicture.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include "ui/services/SvgImage.h"

namespace tarvelin {

namespace {

QByteArray AlsPng(Zeitleiste& leiste, const QSize& groesse) {
    // Sharp on a screen of twice the density, too.
    constexpr int kSchaerfe = 2;
    QImage bild(groesse * kSchaerfe, QImage::Format_RGB32);
    QPainter painter(&bild);
    painter.scale(kSchaerfe, kSchaerfe);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    leiste.Male(painter, QRectF(QPointF(), groesse));
    painter.end();
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    bild.save(&puffer, "PNG");
    return bytes;
}

QByteArray AlsPdf(Zeitleiste& leiste, const QSize& groesse) {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    QPdfWriter schreiber(&puffer);
    schreiber.setTitle(QStringLiteral("Tarvelin"));
    // A point of the page for each pixel.
    constexpr int kPunkteJeZoll = 72;
    schreiber.setResolution(kPunkteJeZoll);
    schreiber.setPageMargins(QMarginsF());
    schreiber.setPageSize(QPageSize(groesse, {}, QPageSize::ExactMatch));
    QPainter painter(&schreiber);
    leiste.Male(painter, QRectF(QPointF(), groesse));
    painter.end();
    return bytes;
}

}  // namespace

std::optional<QByteArray> BildVon(Zeitleiste& leiste, const QString& endung) {
    const QSize groesse = leiste.viewport()->size();
    const QString format = endung.toLower();
    if (format == QStringLiteral("png")) {
        return AlsPng(leiste, groesse);
    }
    if (format == QStringLiteral("pdf")) {
        return AlsPdf(leiste, groesse);
    }
    if (format == QStringLiteral("svg") && HasSvg()) {
        return ToSvg(groesse,
                     [&](QPainter& painter) { leiste.Male(painter, QRectF(QPointF(), groesse)); });
    }
    return std::nullopt;
}

}  // namespace tarvelin
