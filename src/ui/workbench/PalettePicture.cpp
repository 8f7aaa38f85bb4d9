// Paints the picture, and starts the drag.
#include "ui/workbench/PalettePicture.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include "ui/look/Icons.h"
#include "ui/look/TypeSizes.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

namespace {

constexpr int kWidth = 72;
constexpr int kPicture = 44;
constexpr int kTop = 3;
constexpr int kCaptionLines = 2;

}  // namespace

PalettePicture::PalettePicture(const QString& name, QWidget* parent) : QAbstractButton(parent) {
    setObjectName(name);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PalettePicture::SetPicture(const QPixmap& picture) {
    m_picture = picture;
    update();
}

void PalettePicture::SetCaption(const QString& caption) {
    m_caption = caption;
    update();
}

void PalettePicture::SetLocked(bool locked) {
    m_locked = locked;
    update();
}

QSize PalettePicture::sizeHint() const {
    const QFontMetrics metrics(TypeFont(font(), TypeSize::Caption));
    const int widest = metrics.horizontalAdvance(QStringLiteral("triebwerk 10")) + 2;
    return {std::max(kWidth, widest), kTop + kPicture + kCaptionLines * metrics.height() + kTop};
}

QRect PalettePicture::PictureRect() const {
    return {(width() - kPicture) / 2, kTop, kPicture, kPicture};
}

void PalettePicture::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const WorkbenchColors colors = ColorsFor(palette());
    const bool pointedAt = underMouse() || isDown();
    if (pointedAt || hasFocus()) {
        const int pen = hasFocus() ? 2 : 1;
        painter.fillRect(rect(), colors[pointedAt ? Color::Hover : Color::Toolbar]);
        painter.setPen(
            QPen(colors[Color::Accent], pen, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        const qreal inset = pen / 2.0;
        painter.drawRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset));
    }
    constexpr qreal kPale = 1.0 / 3;
    painter.setOpacity(m_locked ? kPale : 1);
    painter.drawPixmap(PictureRect(), m_picture);
    painter.setOpacity(1);
    if (m_locked) {
        constexpr int kLock = 12;
        constexpr int kFrame = 2;
        const QRect place(PictureRect().bottomRight() - QPoint(kLock + kFrame, kLock + kFrame),
                          QSize(kLock + 2 * kFrame, kLock + 2 * kFrame));
        painter.fillRect(place, colors[Color::Toolbar]);
        PaintSymbol(painter, Symbol::Level, place.adjusted(kFrame, kFrame, -kFrame, -kFrame),
                    colors[Color::Disabled]);
    }
    painter.setFont(TypeFont(font(), TypeSize::Caption));
    painter.setPen(colors[m_locked ? Color::Disabled : Color::Text]);
    painter.drawText(rect().adjusted(0, kTop + kPicture, 0, 0),
                     static_cast<int>(Qt::AlignHCenter | Qt::AlignTop), m_caption);
}

void PalettePicture::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
    emit PointedAt(true);
}

void PalettePicture::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
    emit PointedAt(false);
}

void PalettePicture::focusInEvent(QFocusEvent* event) {
    QAbstractButton::focusInEvent(event);
    emit PointedAt(true);
}

void PalettePicture::focusOutEvent(QFocusEvent* event) {
    QAbstractButton::focusOutEvent(event);
    emit PointedAt(false);
}

void PalettePicture::mousePressEvent(QMouseEvent* event) {
    m_pressed = event->pos();
    QAbstractButton::mousePressEvent(event);
}

void PalettePicture::mouseMoveEvent(QMouseEvent* event) {
    QAbstractButton::mouseMoveEvent(event);
    if ((event->buttons() & Qt::LeftButton) == 0 ||
        (event->pos() - m_pressed).manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    setDown(false);
    auto* const mimeData = new QMimeData;
    mimeData->setData(kItemMimeType, objectName().toUtf8());
    // The toolkit deletes it after the drop.
    auto* const drag = new QDrag(this);
    drag->setMimeData(mimeData);
    drag->setPixmap(grab(PictureRect()));
    drag->exec(Qt::CopyAction);
}

}  // namespace tarvelin
