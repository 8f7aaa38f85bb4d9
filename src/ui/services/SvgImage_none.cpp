// For builds without the SVG module.
#include "ui/services/SvgImage.h"

namespace tarvelin {

bool HasSvg() {
    return false;
}

QByteArray ToSvg(const QSize& /*size*/, const std::function<void(QPainter&)>& /*draw*/) {
    return {};
}

}  // namespace tarvelin
