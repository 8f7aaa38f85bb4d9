// The words of a poster: what a plan is, its orders, how it ends.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "simulation/RunTrace.h"
#include "ui/look/IconPaths.h"
#include "ui/look/WorkbenchColors.h"

namespace tarvelin {

/// A row of the table.
struct PosterRow {
    QString number;
    /// None for a production row.
    std::optional<ItemId> picture;
    QString name;
    /// With its day, and without.
    QString start;
    QString timeOfDay;
    /// What it waited for, without a word if for nothing.
    QString wait;
    Symbol waitSymbol = Symbol::Click;
    Color waitColor = Color::Weak;
    /// Whether it is the first of its day.
    bool newDay = false;
};

[[nodiscard]] std::vector<PosterRow> PosterRows(const RunTrace& run);

/// "Start Di 01.12.2026 18:00 · Planet −10 bis 30 °C · Geschwindigkeit ×1 · Klickpuffer 5 s ·
/// Schlaf 23:00 bis 07:00".
[[nodiscard]] QString PosterSubtitle(const RunConditions& conditions);

struct PosterFigure {
    QString caption;
    QString value;
};

/// Duration, end, sittings, points.
[[nodiscard]] std::vector<PosterFigure> PosterFigures(const RunTrace& run);

}  // namespace tarvelin
