// Colours of the timeline, on a light or a dark desktop.
#pragma once

#include <QColor>
#include <QPalette>

#include "model/ItemId.h"
#include "model/Resource.h"
#include "model/Wait.h"

namespace tarvelin {

/// What the timeline is drawn with.
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

    /// Of a wait, after its reason.
    [[nodiscard]] QColor ForDelay(const Delay& delay) const;
};

}  // namespace tarvelin
