// Size and place of the workbench, which outlast a session.
#pragma once

#include <QWidget>

#include "persistence/Configuration.h"

namespace tarvelin {

/// Gives a window the size and place that `configuration` keeps, if they fit on the screen;
/// otherwise `firstSize`, in pixels.
void RestorePlace(QWidget& window, const Configuration& configuration, const QSize& firstSize);

[[nodiscard]] Configuration::Values PlaceOf(const QWidget& window);

}  // namespace tarvelin
