// The texts of the start page in the sizes that the workbench has.
#pragma once

#include <QLabel>
#include <cstdint>

namespace tarvelin {

enum class TextSize : std::uint8_t { Usual, Bold, Heading, Title };

/// A label that wraps. Its family follows that of its parent.
[[nodiscard]] QLabel* NewStartText(const QString& text, TextSize size, QWidget* parent);

}  // namespace tarvelin
