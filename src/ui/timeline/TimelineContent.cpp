// Sizes of what is shown.
#include "ui/timeline/TimelineContent.h"

#include <QFontInfo>
#include <algorithm>
#include <cmath>

#include "ui/look/TypeSizes.h"

namespace tarvelin {

std::optional<SimTime> TimelineContent::Present() const {
    return run && now && *now >= run->conditions.StartDate &&
                   *now <= run->conditions.WallClock(run->Duration())
               ? std::optional(SimTime(*now - run->conditions.StartDate))
               : std::nullopt;
}

double TimelineContent::EndSecond() const {
    double end = 1;
    const auto include = [&](double second) { end = std::max(end, second); };
    if (run) {
        include(run->Duration().Seconds());
        for (const cSchlafzeit& night : proposedNights) {
            if (night.Startzeit() < run->conditions.WallClock(run->Duration())) {
                include(night.Endzeit() - run->conditions.StartDate);
            }
        }
    }
    for (const DashedRun& other : others) {
        include(other.run.Duration().Seconds());
    }
    return end;
}

QFont TimelineLook::CaptionFont(const QFont& font) {
    QFont caption = TypeFont(font, TypeSize::Caption);
    caption.setPixelSize(QFontInfo(caption).pixelSize());
    return caption;
}

PerItem<QPixmap> ScaledPictures(const PerItem<QPixmap>& pictures, int side) {
    PerItem<QPixmap> scaled;
    std::ranges::transform(pictures, scaled.begin(), [&](const QPixmap& picture) {
        return picture.isNull()
                   ? picture
                   : picture.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    });
    return scaled;
}

}  // namespace tarvelin
