// The workbench's own icons, sharp at every size and scale.
#pragma once

#include <QIcon>
#include <QPainter>

#include "ui/look/IconPaths.h"
#include "ui/look/WorkbenchColors.h"

namespace tarvelin {

/// Meant for 20 x 20. An icon keeps its colors: it has to be made anew for another set.
[[nodiscard]] QIcon ToolIcon(Icon icon, const WorkbenchColors& colors);

/// A symbol where an icon is asked for, as on a button. Meant for 12 x 12.
[[nodiscard]] QIcon SymbolIcon(Symbol symbol, Color color, const WorkbenchColors& colors);

/// Paints into the largest square in the middle of `rect`.
void PaintSymbol(QPainter& painter, Symbol symbol, const QRectF& rect, const QColor& color);

}  // namespace tarvelin
