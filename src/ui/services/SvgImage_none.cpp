// Not on this platform.
#include "ui/services/SvgImage.h"

namespace tarvelin {

bool KannSvg() {
    return false;
}

QByteArray AlsSvg(const QSize& /*groesse*/, const std::function<void(QPainter&)>& /*male*/) {
    return {};
}

}  // namespace tarvelin
