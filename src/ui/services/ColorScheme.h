// The desktop's setting for light or dark windows.
#pragma once

#include <QObject>
#include <functional>

namespace tarvelin {

/// Reports whether the desktop asks for dark windows: once, at or after the call, and whenever that
/// changes, while `context` lives. Reports nothing where the desktop has no such setting.
void WatchColorScheme(QObject* context, std::function<void(bool dark)> report);

}  // namespace tarvelin
