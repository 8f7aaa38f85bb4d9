// Pictures as SVG, if the toolkit's SVG module is built in.
#pragma once

#include <QByteArray>
#include <QPainter>
#include <QSize>
#include <functional>

namespace tarvelin {

[[nodiscard]] bool HasSvg();

/// The file of what `draw` paints on a picture of this many pixels; empty without the module.
[[nodiscard]] QByteArray ToSvg(const QSize& size, const std::function<void(QPainter&)>& draw);

}  // namespace tarvelin
