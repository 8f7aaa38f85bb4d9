// Language, style and font of the program, the same on every machine.
#pragma once

#include <QApplication>
#include <QFont>

namespace tarvelin {

/// Sets German for the toolkit's own dialogs, a light style and a small font.
void ApplyAppearance(QApplication& program);

/// The desktop's font. Falls back to the program's where the desktop names one that isn't
/// installed.
QFont DesktopFont();

}  // namespace tarvelin
