// Arranges and paints the pictures.
#include "ui/workbench/ItemCounts.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "model/ItemTable.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

constexpr int kPicture = 18;
constexpr int kLine = 22;
constexpr int kGap = 6;

}  // namespace

ItemCounts::ItemCounts(QString caption, QWidget* parent)
    : QWidget(parent), m_caption(std::move(caption)) {
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void ItemCounts::SetPictures(const PerItem<QPixmap>& pictures) {
    m_pictures = pictures;
    update();
}

void ItemCounts::ShowCounts(const PerItem<int>& counts) {
    m_counts = counts;
    QString text = m_caption;
    for (const ItemRow& row : ItemTable()) {
        if (counts[row.item] > 0) {
            text += QStringLiteral(" %1 %2,").arg(counts[row.item]).arg(ToQString(row.name));
        }
    }
    setAccessibleName(text == m_caption ? text + QStringLiteral(" nichts") : text.chopped(1));
    setToolTip(accessibleName());
    updateGeometry();
    update();
}

template <class Place>
int ItemCounts::Arrange(int width, Place place) const {
    const QFontMetrics metrics(font());
    const int first = metrics.horizontalAdvance(QStringLiteral("Kommt dazu ")) + kGap;
    int left = first;
    int top = 0;
    for (const ItemRow& row : ItemTable()) {
        if (m_counts[row.item] <= 0) {
            continue;
        }
        const QString text = QStringLiteral("%1×").arg(m_counts[row.item]);
        const int advance = metrics.horizontalAdvance(text);
        if (left + advance + kPicture > width && left > first) {
            left = first;
            top += kLine;
        }
        place(text, row.item,
              QRect(left + advance, top + (kLine - kPicture) / 2, kPicture, kPicture));
        left += advance + kPicture + kGap;
    }
    return top + kLine;
}

int ItemCounts::heightForWidth(int width) const {
    return Arrange(width, [](const QString& /*text*/, ItemId /*item*/, const QRect& /*rect*/) {});
}

QSize ItemCounts::sizeHint() const {
    constexpr int kWidth = 340;
    return {kWidth, heightForWidth(width())};
}

void ItemCounts::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const WorkbenchColors colors = ColorsFor(palette());
    const QFontMetrics metrics(font());
    const int base = (kLine + metrics.ascent() - metrics.descent()) / 2;
    painter.setPen(colors[Color::Weak]);
    painter.drawText(0, base, m_caption);
    painter.setPen(colors[Color::Text]);
    bool any = false;
    Arrange(width(), [&](const QString& text, ItemId item, const QRect& rect) {
        painter.drawText(rect.left() - metrics.horizontalAdvance(text),
                         rect.top() - (kLine - kPicture) / 2 + base, text);
        painter.drawPixmap(rect, m_pictures[item]);
        any = true;
    });
    if (!any) {
        painter.drawText(metrics.horizontalAdvance(QStringLiteral("Kommt dazu ")) + kGap, base,
                         QStringLiteral("nichts"));
    }
}

}  // namespace tarvelin
