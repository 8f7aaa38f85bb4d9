// Not on this platform.
#include "ui/services/SvgImage.h"

namespace tarvelin {

bool HasSvg() {
    return false;
}

QByteArray ToSvg(const QSize& /*groesse*/, const std::function<void(QPainter&)>& /*male*/) {
    return {};
}

}  // namespace tarvelin
