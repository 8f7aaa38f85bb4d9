// Renders PNG, PDF and SVG.
#include "ui/workbench/TimelinePicture.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include "ui/services/SvgImage.h"

namespace tarvelin {

namespace {

QByteArray ToPng(TimelineView& timeline, const QSize& size) {
    // Sharp on screens of scale 2, too.
    constexpr int kSharpness = 2;
    QImage picture(size * kSharpness, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.scale(kSharpness, kSharpness);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    timeline.PaintOn(painter, QRectF(QPointF(), size));
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

QByteArray ToPdf(TimelineView& timeline, const QSize& size) {
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
    timeline.PaintOn(painter, QRectF(QPointF(), size));
    painter.end();
    return bytes;
}

}  // namespace

std::optional<QByteArray> RenderTimeline(TimelineView& timeline, const QString& suffix) {
    const QSize size = timeline.viewport()->size();
    const QString format = suffix.toLower();
    if (format == QStringLiteral("png")) {
        return ToPng(timeline, size);
    }
    if (format == QStringLiteral("pdf")) {
        return ToPdf(timeline, size);
    }
    if (format == QStringLiteral("svg") && HasSvg()) {
        return ToSvg(
            size, [&](QPainter& painter) { timeline.PaintOn(painter, QRectF(QPointF(), size)); });
    }
    return std::nullopt;
}

}  // namespace tarvelin
