// Language, style and font: the same on every machine.
#pragma once

#include <QApplication>

namespace tarvelin {

/// German words in the toolkit's own boxes, one style with light colours, one small font.
void StelleAussehenEin(QApplication& programm);

}  // namespace tarvelin
