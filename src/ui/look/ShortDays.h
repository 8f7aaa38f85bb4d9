// Time spans for places with little room.
#pragma once

#include <QString>

namespace tarvelin {

/// "2 T 16:00:00" for "2 Tage 16:00:00".
[[nodiscard]] inline QString WithShortDays(QString text) {
    return text.replace(QStringLiteral(" Tage "), QStringLiteral(" T "))
        .replace(QStringLiteral(" Tag "), QStringLiteral(" T "));
}

}  // namespace tarvelin
