// Pictures as SVG, where the toolkit's module for it is built in.
#pragma once

#include <QByteArray>
#include <QPainter>
#include <QSize>
#include <functional>

namespace tarvelin {

[[nodiscard]] bool HasSvg();

/// The bytes of what `draw` paints on this many dots; none where it can't be done.
[[nodiscard]] QByteArray ToSvg(const QSize& size, const std::function<void(QPainter&)>& draw);

}  // namespace tarvelin
