// Proportional columns and their head.
#include "ui/widgets/ListView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QResizeEvent>
#include <QToolTip>
#include <algorithm>
#include <numeric>
#include <utility>

namespace tarvelin {

namespace {

constexpr int kKopfrand = 2;

/// Cells without the style's margins, which the narrow columns have no room for.
class Zellenstil : public QProxyStyle {
  public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        // A cell's text keeps one pixel more than this on either side.
        return metric == PM_FocusFrameHMargin ? 0
                                              : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

}  // namespace

Listenkopf::Listenkopf(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(false);
    setSectionsMovable(false);
    setSectionResizeMode(QHeaderView::Fixed);
    setMinimumSectionSize(1);
    setStretchLastSection(false);
}

QString Listenkopf::Text(int spalte) const {
    return model()->headerData(spalte, Qt::Horizontal, Qt::DisplayRole).toString();
}

QString Listenkopf::Gekuerzt(int spalte) const {
    return fontMetrics().elidedText(Text(spalte), Qt::ElideRight,
                                    sectionSize(spalte) - 2 * kKopfrand);
}

QSize Listenkopf::sizeHint() const {
    return {QHeaderView::sizeHint().width(), fontMetrics().height() + 2 * kKopfrand};
}

bool Listenkopf::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QHeaderView::viewportEvent(event);
    }
    const auto* const hilfe = static_cast<QHelpEvent*>(event);
    const int spalte = logicalIndexAt(hilfe->pos());
    const bool gekuerzt = spalte >= 0 && Gekuerzt(spalte) != Text(spalte);
    QToolTip::showText(hilfe->globalPos(), gekuerzt ? Text(spalte) : QString(), this);
    return true;
}

void Listenkopf::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().button());
    painter.setPen(palette().mid().color());
    painter.drawLine(0, height() - 1, width(), height() - 1);
    painter.end();
    QHeaderView::paintEvent(event);
}

void Listenkopf::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
    painter->setPen(palette().buttonText().color());
    painter->drawText(rect.adjusted(kKopfrand, 0, -kKopfrand, 0),
                      static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), Gekuerzt(logicalIndex));
}

Liste::Liste(const QString& name, const QString& bedeutung, std::vector<int> anteile,
             QWidget* parent)
    : QTreeView(parent), m_anteile(std::move(anteile)) {
    setObjectName(name);
    setAccessibleName(bedeutung);
    setHeader(new Listenkopf(this));
    auto* const stil = new Zellenstil;
    stil->setParent(this);
    setStyle(stil);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTextElideMode(Qt::ElideNone);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setMouseTracking(true);
    // Tab leaves a list; the arrow keys walk in it.
    setTabKeyNavigation(false);
}

void Liste::setModel(QAbstractItemModel* model) {
    QTreeView::setModel(model);
    VerteileSpalten();
}

void Liste::mouseMoveEvent(QMouseEvent* event) {
    QTreeView::mouseMoveEvent(event);
    emit MouseMove(indexAt(event->position().toPoint()));
}

bool Liste::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave) {
        emit MouseMove({});
    }
    return QTreeView::viewportEvent(event);
}

void Liste::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    VerteileSpalten();
}

// The row that takes the place of a current one that goes isn't brought to sight.
void Liste::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) {
    setAutoScroll(false);
    QTreeView::rowsAboutToBeRemoved(parent, start, end);
    setAutoScroll(true);
}

void Liste::VerteileSpalten() {
    const int summe = std::accumulate(m_anteile.begin(), m_anteile.end(), 0);
    int links = 0;
    int anteil = 0;
    for (int spalte = 0; spalte < std::min(header()->count(), static_cast<int>(m_anteile.size()));
         ++spalte) {
        anteil += m_anteile[static_cast<std::size_t>(spalte)];
        const int rechts = (viewport()->width() * anteil + summe / 2) / summe;
        header()->resizeSection(spalte, rechts - links);
        links = rechts;
    }
    updateGeometries();
}

}  // namespace tarvelin
