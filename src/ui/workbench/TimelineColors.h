// Colours of the timeline, on a light or a dark desktop.
#pragma once

#include <QColor>
#include <QPalette>

#include "model/ItemId.h"
#include "model/Resource.h"
#include "model/Wait.h"

namespace tarvelin {

[[nodiscard]] bool IstDunkel(const QPalette& palette);

/// What the timeline is drawn with.
struct Werkbankfarben {
    QColor Grund;
    QColor Spur;
    QColor Linie;
    QColor Text;
    QColor Auswahl;
    QColor Schlaf;
    QColor Jetzt;
    QColor Produktion;
    QColor Energie;
    QColor Energiemangel;
    PerQueue<QColor> Balken;
    PerResource<QColor> Vorrat;

    explicit Werkbankfarben(const QPalette& palette);

    /// Of a wait, after its reason.
    [[nodiscard]] QColor Warten(const Delay& grund) const;
};

}  // namespace tarvelin
