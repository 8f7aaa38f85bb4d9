// Language, style and font: the same on every machine.
#pragma once

#include <QApplication>
#include <QFont>

namespace tarvelin {

/// German words in the toolkit's own boxes, one style with light colours, one small font.
void ApplyAppearance(QApplication& program);

/// The desktop's own font; that of the program where the desktop names one that nobody has
/// installed.
QFont DesktopFont();

}  // namespace tarvelin
