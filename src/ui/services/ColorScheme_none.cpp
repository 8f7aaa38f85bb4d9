// For platforms without such a setting: the theme alone decides.
#include "ui/services/ColorScheme.h"

namespace tarvelin {

void WatchColorScheme(QObject* /*context*/, std::function<void(bool dark)> /*report*/) {}

}  // namespace tarvelin
