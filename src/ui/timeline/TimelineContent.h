// What a timeline shows.
#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QString>
#include <optional>
#include <set>
#include <vector>

#include "model/ItemId.h"
#include "simulation/RunTrace.h"
#include "ui/look/WorkbenchColors.h"

namespace tarvelin {

/// Another run, drawn dashed over the first.
struct DashedRun {
    RunTrace run;
    /// "Fund" or "gemerkt".
    QString name;
    /// Of the line at its end.
    Color color = Color::Weak;
};

struct TimelineContent {
    /// None if the plan can't be run.
    std::optional<RunTrace> run;
    std::vector<DashedRun> others;
    /// Nights of a rule that aren't entered.
    std::vector<cSchlafzeit> proposedNights;
    /// The wall clock.
    std::optional<DateTime> now;
    std::set<std::size_t> chosenRows;
    std::optional<std::size_t> nextRow;
    /// The row for whose sake the last edit was refused.
    std::optional<std::size_t> refusedRow;
    /// Whether orders bear their names and moments where there is room.
    bool names = true;

    /// Now, if the plan is being played.
    [[nodiscard]] std::optional<SimTime> Present() const;
    /// Where the picture ends, in seconds since the plan's start: the end of the longest run, or of
    /// the last proposed night into which the plan falls; at least 1.
    [[nodiscard]] double EndSecond() const;
};

/// How it looks. Fonts have sizes in pixels, so that they are the same on any device.
struct TimelineLook {
    WorkbenchColors colors;
    QFont font;
    /// The side of a picture is that of a lane, or a multiple of it.
    PerItem<QPixmap> pictures;

    /// Captions of this font on a screen.
    [[nodiscard]] static QFont CaptionFont(const QFont& font);
};

/// Pictures of this many pixels.
[[nodiscard]] PerItem<QPixmap> ScaledPictures(const PerItem<QPixmap>& pictures, int side);

}  // namespace tarvelin
