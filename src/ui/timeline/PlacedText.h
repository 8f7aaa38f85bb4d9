// Texts that a layout has given their places.
#pragma once

#include <QString>
#include <functional>

namespace tarvelin {

/// How wide a text is, in pixels.
using TextWidth = std::function<double(const QString&)>;

/// The same for the usual texts and for bold ones.
struct TextWidths {
    TextWidth usual;
    TextWidth bold;
};

struct PlacedText {
    double left = 0;
    double width = 0;
    QString text;

    [[nodiscard]] double Right() const { return left + width; }
    /// Whether less than `gap` lies between the two.
    [[nodiscard]] bool Touches(const PlacedText& other, double gap) const {
        return left < other.Right() + gap && other.left < Right() + gap;
    }
};

}  // namespace tarvelin
