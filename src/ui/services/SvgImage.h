// Pictures as SVG, where the toolkit's module for it is built in.
#pragma once

#include <QByteArray>
#include <QPainter>
#include <QSize>
#include <functional>

namespace tarvelin {

[[nodiscard]] bool KannSvg();

/// The bytes of what `male` paints on this many dots; none where it can't be done.
[[nodiscard]] QByteArray AlsSvg(const QSize& groesse, const std::function<void(QPainter&)>& male);

}  // namespace tarvelin
