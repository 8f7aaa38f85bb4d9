// The sizes.
#include "ui/workbench/StartTexts.h"

#include "ui/widgets/Controls.h"
#include "util/EnumArray.h"

namespace tarvelin {

QLabel* NewStartText(const QString& text, TextSize size, QWidget* parent) {
    constexpr std::array<qreal, 4> kPoints{9, 9, 11, 14};
    QLabel* const label = NewLabel({}, text, parent);
    label->setWordWrap(true);
    // A new font has only what is set here; the rest comes from the parent.
    QFont font;
    font.setPointSizeF(kPoints[IndexOf(size)]);
    if (size != TextSize::Usual) {
        font.setBold(true);
    }
    label->setFont(font);
    return label;
}

}  // namespace tarvelin
