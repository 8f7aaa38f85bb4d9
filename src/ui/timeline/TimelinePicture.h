// Pictures of a timeline as files.
#pragma once

#include <QByteArray>
#include <QPainter>
#include <QSize>
#include <QString>
#include <functional>
#include <optional>

namespace tarvelin {

/// The file of what `draw` paints on a picture of this many pixels; a PNG has `sharpness` times as
/// many. `suffix` is the format, in any case: png, pdf or, if it is built in, svg. Nothing for any
/// other.
[[nodiscard]] std::optional<QByteArray> RenderPicture(const QSize& size, int sharpness,
                                                      const QString& suffix,
                                                      const std::function<void(QPainter&)>& draw);

}  // namespace tarvelin
