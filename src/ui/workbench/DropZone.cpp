// Layout and drops of the zone.
#include "ui/workbench/DropZone.h"

#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QMimeData>
#include <QPainter>

#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemPicture.h"
#include "ui/workbench/PageParts.h"

namespace tarvelin {

namespace {

/// In pixels.
constexpr int kPicture = 40;
constexpr int kSpacing = 4;
constexpr int kMargin = 20;

}  // namespace

DropZone::DropZone(QWidget* parent)
    : QWidget(parent),
      m_mine(NewPicture(QStringLiteral("PIC_Mine"), {kPicture, kPicture}, {}, this)),
      m_plant(NewPicture(QStringLiteral("PIC_Kraftwerk"), {kPicture, kPicture}, {}, this)) {
    setObjectName(QStringLiteral("Ablage"));
    setAccessibleName(QStringLiteral("Zieh ein Bild hierher"));
    setAcceptDrops(true);
    auto* const plus = NewTypeLabel(QStringLiteral("+"), TypeSize::Figure, true, this);
    plus->setForegroundRole(QPalette::Link);
    auto* const what =
        NewTypeLabel(QStringLiteral("Zieh ein Bild hierher"), TypeSize::Heading, true, this);
    auto* const how = NewTypeLabel(
        QStringLiteral("oder klick rechts auf eines. Metallmine und Solarkraftwerk sind ein guter "
                       "Anfang; ein Schloss heißt: geht noch nicht."),
        TypeSize::Usual, false, this);
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(kSpacing);
    texts->addStretch(1);
    texts->addWidget(what);
    texts->addWidget(how);
    texts->addStretch(1);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kSpacing);
    layout->addWidget(m_mine);
    layout->addWidget(m_plant);
    layout->addSpacing(kMargin - 2 * kSpacing);
    layout->addWidget(plus);
    layout->addSpacing(kMargin - 2 * kSpacing);
    layout->addLayout(texts, 1);
}

void DropZone::SetPictures(const PerItem<QPixmap>& pictures) {
    m_mine->setPixmap(pictures[ItemId::MetMine]);
    m_plant->setPixmap(pictures[ItemId::SKW]);
}

void DropZone::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasFormat(kItemMimeType)) {
        event->acceptProposedAction();
        SetPointedAt(true);
    }
}

void DropZone::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
    SetPointedAt(false);
}

void DropZone::dropEvent(QDropEvent* event) {
    SetPointedAt(false);
    event->acceptProposedAction();
    emit Dropped(QString::fromUtf8(event->mimeData()->data(kItemMimeType)));
}

void DropZone::SetPointedAt(bool pointedAt) {
    m_pointedAt = pointedAt;
    update();
}

void DropZone::paintEvent(QPaintEvent* /*event*/) {
    constexpr qreal kRounding = 3;
    const WorkbenchColors colors = ColorsFor(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPen frame(colors[Color::Accent], 2);
    if (!m_pointedAt) {
        frame.setDashPattern({3, 2});
        frame.setCapStyle(Qt::FlatCap);
    }
    painter.setPen(frame);
    painter.setBrush(colors[m_pointedAt ? Color::Chosen : Color::Hover]);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRounding, kRounding);
}

}  // namespace tarvelin
