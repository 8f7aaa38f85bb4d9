// Colors of the timeline on a light or dark desktop.
#pragma once

#include <QColor>
#include <QPalette>

#include "model/ItemId.h"
#include "model/Resource.h"
#include "model/Wait.h"

namespace tarvelin {

struct TimelineColors {
    QColor background;
    QColor lane;
    QColor line;
    QColor text;
    QColor chosen;
    QColor sleep;
    QColor now;
    QColor production;
    QColor energy;
    QColor energyDeficit;
    PerQueue<QColor> bars;
    PerResource<QColor> stock;

    explicit TimelineColors(const QPalette& palette);

    /// The color of a wait.
    [[nodiscard]] QColor ForDelay(const Delay& delay) const;
};

}  // namespace tarvelin
