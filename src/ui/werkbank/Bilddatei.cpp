// The three formats.
#include "ui/werkbank/Bilddatei.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

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

QByteArray AlsSvg(Zeitleiste& leiste, const QSize& groesse) {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    QSvgGenerator erzeuger;
    erzeuger.setOutputDevice(&puffer);
    erzeuger.setTitle(QStringLiteral("Tarvelin"));
    erzeuger.setSize(groesse);
    erzeuger.setViewBox(QRect(QPoint(), groesse));
    QPainter painter(&erzeuger);
    leiste.Male(painter, QRectF(QPointF(), groesse));
    painter.end();
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
    struct Format {
        const char* Endung;
        QByteArray (*Male)(Zeitleiste&, const QSize&);
    };
    for (const auto& [name, male] :
         {Format{"png", AlsPng}, Format{"svg", AlsSvg}, Format{"pdf", AlsPdf}}) {
        if (endung.compare(QLatin1String(name), Qt::CaseInsensitive) == 0) {
            return male(leiste, leiste.viewport()->size());
        }
    }
    return std::nullopt;
}

}  // namespace tarvelin
