// Saves the timeline as a picture.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "ui/workbench/TimelineView.h"

namespace tarvelin {

/// The file of a picture of the visible part. `suffix` is the format, in any case: png, pdf or, if
/// it is built in, svg. Nothing for any other.
[[nodiscard]] std::optional<QByteArray> RenderTimeline(TimelineView& timeline,
                                                       const QString& suffix);

}  // namespace tarvelin
