// What the user has asked all programs of his desktop for: light or dark windows.
#pragma once

#include <QObject>
#include <functional>

namespace tarvelin {

/// Tells whether the desktop asks for dark windows, some time after the call, and again whenever
/// that changes, as long as `context` lives. Where no desktop answers nothing is told.
void WatchColorScheme(QObject* context, std::function<void(bool dark)> report);

}  // namespace tarvelin
