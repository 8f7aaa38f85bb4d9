// The timeline as a picture in a file.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "ui/workbench/TimelineView.h"

namespace tarvelin {

/// The bytes of a picture of what the timeline shows, in the format that the name's ending tells:
/// PNG, PDF or, where that can be had, SVG. Nothing for any other ending.
[[nodiscard]] std::optional<QByteArray> RenderTimeline(TimelineView& timeline,
                                                       const QString& suffix);

}  // namespace tarvelin
