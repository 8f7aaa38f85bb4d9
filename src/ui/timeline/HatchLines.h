// The lines of a hatching, cut to a rectangle: so they follow the screen's scale and reach every
// paint device.
#pragma once

#include <QLineF>
#include <QList>
#include <QPainter>
#include <QRectF>

#include "ui/look/WaitLook.h"

namespace tarvelin {

/// `anchor` is the place from which lines that aren't level are counted. They lie 6 pixels apart,
/// level and upright ones 3; dots 4.
[[nodiscard]] QList<QLineF> HatchLines(Hatching hatching, const QRectF& rect, double anchor);

void PaintHatching(QPainter& painter, Hatching hatching, const QRectF& rect, double anchor,
                   const QColor& color);

}  // namespace tarvelin
