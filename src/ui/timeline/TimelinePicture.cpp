// Renders PNG, PDF and SVG.
#include "ui/timeline/TimelinePicture.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>

#include "ui/services/SvgImage.h"

namespace tarvelin {

namespace {

using Draw = std::function<void(QPainter&)>;

QByteArray ToPng(const QSize& size, int sharpness, const Draw& draw) {
    QImage picture(size * sharpness, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.scale(sharpness, sharpness);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    draw(painter);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

QByteArray ToPdf(const QSize& size, const Draw& draw) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(QStringLiteral("Tarvelin"));
    // One point per pixel.
    constexpr int kDotsPerInch = 72;
    writer.setResolution(kDotsPerInch);
    writer.setPageMargins(QMarginsF());
    writer.setPageSize(QPageSize(size, {}, QPageSize::ExactMatch));
    QPainter painter(&writer);
    draw(painter);
    painter.end();
    return bytes;
}

}  // namespace

std::optional<QByteArray> RenderPicture(const QSize& size, int sharpness, const QString& suffix,
                                        const Draw& draw) {
    const QString format = suffix.toLower();
    if (format == QStringLiteral("png")) {
        return ToPng(size, sharpness, draw);
    }
    if (format == QStringLiteral("pdf")) {
        return ToPdf(size, draw);
    }
    if (format == QStringLiteral("svg") && HasSvg()) {
        return ToSvg(size, draw);
    }
    return std::nullopt;
}

}  // namespace tarvelin
