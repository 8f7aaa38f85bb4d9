// For platforms whose theme alone tells the colours.
#include "ui/services/ColorScheme.h"

namespace tarvelin {

void WatchColorScheme(QObject* /*kontext*/, std::function<void(bool dark)> /*melde*/) {}

}  // namespace tarvelin
