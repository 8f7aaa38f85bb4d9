// The sizes of type in the workbench, from the window's font.
#pragma once

#include <QFont>

namespace tarvelin {

/// In points more than the usual text, which has the size of the desktop's font.
enum class TypeSize { Caption = -1, Usual = 0, Heading = 2, Figure = 5 };

/// Never smaller than 8 points.
[[nodiscard]] inline QFont TypeFont(QFont font, TypeSize size, bool bold = false) {
    constexpr qreal kSmallest = 8;
    font.setPointSizeF(std::max(kSmallest, font.pointSizeF() + static_cast<int>(size)));
    font.setBold(bold);
    return font;
}

}  // namespace tarvelin
