// Pixmaps, icons and cursors from files.
#include "ui/widgets/Pictures.h"

#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

/// 32 pixels on a screen of scale 1.
QPixmap LoadCursor(const std::filesystem::path& file, qreal scaling) {
    constexpr int kSide = 32;
    return LoadIconFile(file).pixmap(QSize(kSide, kSide), scaling);
}

}  // namespace

QPixmap LoadPixmap(const std::filesystem::path& file) {
    return {PathToQString(file)};
}

QIcon LoadIconFile(const std::filesystem::path& file) {
    return QIcon(PathToQString(file));
}

DragCursors LoadDragCursors(const std::filesystem::path& pictures, qreal scaling) {
    const QPixmap open = LoadCursor(pictures / "handopen.ico", scaling);
    return {.openHand = open.isNull() ? QCursor(Qt::OpenHandCursor) : QCursor(open),
            .dragged = LoadCursor(pictures / "hand.ico", scaling)};
}

}  // namespace tarvelin
