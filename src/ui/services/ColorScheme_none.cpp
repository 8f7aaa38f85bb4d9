// For platforms whose theme alone tells the colours.
#include "ui/services/ColorScheme.h"

namespace tarvelin {

void WatchColorScheme(QObject* /*context*/, std::function<void(bool dark)> /*report*/) {}

}  // namespace tarvelin
