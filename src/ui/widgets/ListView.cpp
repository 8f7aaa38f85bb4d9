// Column widths, header and pointer events of a list.
#include "ui/widgets/ListView.h"

#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QResizeEvent>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <numeric>
#include <utility>

namespace tarvelin {

namespace {

constexpr int kHeaderMargin = 2;
constexpr int kIconGap = 3;

/// Removes the style's margins from cells, as narrow columns have no room for them.
class CellStyle : public QProxyStyle {
  public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        // The style adds a pixel on either side.
        return metric == PM_FocusFrameHMargin ? 0
                                              : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

class HighRows : public QStyledItemDelegate {
  public:
    HighRows(int height, QObject* parent) : QStyledItemDelegate(parent), m_height(height) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, m_height});
    }

  private:
    int m_height;
};

}  // namespace

ListHeader::ListHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(false);
    setSectionsMovable(false);
    setSectionResizeMode(QHeaderView::Fixed);
    setMinimumSectionSize(1);
    setStretchLastSection(false);
}

QString ListHeader::CaptionAt(int column) const {
    return model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
}

QString ListHeader::ElidedAt(int column) const {
    return fontMetrics().elidedText(CaptionAt(column), Qt::ElideRight,
                                    sectionSize(column) - 2 * kHeaderMargin);
}

QSize ListHeader::sizeHint() const {
    return {QHeaderView::sizeHint().width(), fontMetrics().height() + 2 * kHeaderMargin};
}

bool ListHeader::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QHeaderView::viewportEvent(event);
    }
    const auto* const help = static_cast<QHelpEvent*>(event);
    const int column = logicalIndexAt(help->pos());
    const bool elided = column >= 0 && ElidedAt(column) != CaptionAt(column);
    QToolTip::showText(help->globalPos(), elided ? CaptionAt(column) : QString(), this);
    return true;
}

void ListHeader::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().button());
    painter.setPen(palette().mid().color());
    painter.drawLine(0, height() - 1, width(), height() - 1);
    painter.end();
    QHeaderView::paintEvent(event);
}

void ListHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
    const auto captionData = [&](int role) {
        return model()->headerData(logicalIndex, Qt::Horizontal, role);
    };
    QRect place = rect.adjusted(kHeaderMargin, 0, -kHeaderMargin, 0);
    const bool right = (captionData(Qt::TextAlignmentRole).toInt() & Qt::AlignRight) != 0;
    if (const auto icon = captionData(Qt::DecorationRole).value<QIcon>(); !icon.isNull()) {
        const int side = fontMetrics().ascent();
        const int text = fontMetrics().horizontalAdvance(ElidedAt(logicalIndex));
        const int left =
            right ? std::max(place.left(), place.right() - text - side - kIconGap) : place.left();
        icon.paint(painter, QRect(left, place.center().y() - side / 2, side, side));
        place.setLeft(left + side + kIconGap);
    }
    painter->setPen(palette().buttonText().color());
    painter->drawText(place,
                      static_cast<int>((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter),
                      ElidedAt(logicalIndex));
}

ListView::ListView(const QString& name, const QString& accessibleName, std::vector<int> shares,
                   QWidget* parent)
    : QTreeView(parent), m_shares(std::move(shares)) {
    setObjectName(name);
    setAccessibleName(accessibleName);
    setHeader(new ListHeader(this));
    auto* const style = new CellStyle;
    style->setParent(this);
    setStyle(style);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTextElideMode(Qt::ElideNone);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setMouseTracking(true);
    // Tab leaves the list; the arrow keys move within it.
    setTabKeyNavigation(false);
}

void ListView::setModel(QAbstractItemModel* model) {
    QTreeView::setModel(model);
    DistributeColumns();
}

void ListView::SetRowHeight(int height) {
    setItemDelegate(new HighRows(height, this));
}

void ListView::mouseMoveEvent(QMouseEvent* event) {
    QTreeView::mouseMoveEvent(event);
    emit MouseMove(indexAt(event->position().toPoint()));
}

bool ListView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave) {
        emit MouseMove({});
    }
    return QTreeView::viewportEvent(event);
}

void ListView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    DistributeColumns();
}

// When the current row is removed another becomes current, and the view would scroll to it.
void ListView::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) {
    setAutoScroll(false);
    QTreeView::rowsAboutToBeRemoved(parent, start, end);
    setAutoScroll(true);
}

void ListView::DistributeColumns() {
    const int sum = std::accumulate(m_shares.begin(), m_shares.end(), 0);
    int left = 0;
    int share = 0;
    for (int column = 0; column < std::min(header()->count(), static_cast<int>(m_shares.size()));
         ++column) {
        share += m_shares[static_cast<std::size_t>(column)];
        const int right = (viewport()->width() * share + sum / 2) / sum;
        header()->resizeSection(column, right - left);
        left = right;
    }
    updateGeometries();
}

}  // namespace tarvelin
