// Choosing, dragging and dropping rows.
#include "ui/workbench/OrderListView.h"

#include <QDrag>
#include <QDragEnterEvent>
#include <QItemSelection>
#include <QMimeData>
#include <QPainter>
#include <algorithm>
#include <array>
#include <numeric>

#include "ui/look/Icons.h"
#include "ui/look/WaitLook.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

namespace {

constexpr QLatin1String kRowsMimeType("application/x-tarvelin-zeilen");

/// What goes where there is no room, group by group.
const std::array<std::vector<OrderColumn>, 4> kDropped{
    {{OrderColumn::Metall, OrderColumn::Kristall, OrderColumn::Deuterium},
     {OrderColumn::BuildTime},
     {OrderColumn::Factor},
     {OrderColumn::Finish}}};

QStringList Captions() {
    QStringList captions;
    for (const OrderColumnRow& column : OrderColumns()) {
        captions.push_back(QString::fromUtf8(column.caption));
    }
    return captions;
}

/// A triangle at the end of the insertion line, pointing along it.
QPolygonF Triangle(qreal x, qreal y, qreal length) {
    const qreal half = std::abs(length) * 0.8;
    return QPolygonF({QPointF(x, y - half), QPointF(x + length, y), QPointF(x, y + half)});
}

}  // namespace

/// Rows can be dragged; captions have the symbols of their resources.
class OrderListView::Model : public TableModel {
  public:
    Model(const Document& document, OrderListView& list)
        : TableModel(
              Captions(),
              {.rows = [&] { return document.CurrentPlan().LV_Bauliste.Rows().size(); },
               .text =
                   [&](std::size_t row, int column) {
                       return OrderCellText(document, row, static_cast<OrderColumn>(column));
                   },
               .description = [&](std::size_t row) { return OrderDescription(document, row); }},
              &list),
          m_list(list) {}

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override {
        const auto flags = TableModel::flags(index);
        return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
    }

    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override {
        const OrderColumnRow& column = OrderColumns()[static_cast<std::size_t>(section)];
        if (role == Qt::TextAlignmentRole) {
            return static_cast<int>(column.right ? Qt::AlignRight : Qt::AlignLeft);
        }
        if (role == Qt::DecorationRole && column.resource) {
            const WaitLook look = LookOf(*column.resource);
            return SymbolIcon(look.symbol, look.symbolColor, ColorsFor(m_list.palette()));
        }
        return TableModel::headerData(section, orientation, role);
    }

  private:
    const OrderListView& m_list;
};

OrderListView::OrderListView(const Document& document, QWidget* parent)
    : ListView(QStringLiteral("LV_Werkbank"), QStringLiteral("Aufträge"), {}, parent),
      m_document(document),
      m_model(new Model(document, *this)),
      m_delegate(new OrderDelegate(document, this)) {
    setModel(m_model);
    setItemDelegate(m_delegate);
    setFrameShape(QFrame::NoFrame);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setDragEnabled(true);
    setAcceptDrops(true);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        m_insertBefore.reset();
        viewport()->update();
        emit ChoiceChanged();
    });
}

void OrderListView::SetPictures(const PerItem<QPixmap>& pictures) {
    m_delegate->SetPictures(pictures);
    viewport()->update();
}

void OrderListView::SetMarks(const OrderMarks& marks) {
    if (marks != m_delegate->Marks()) {
        m_delegate->SetMarks(marks);
        viewport()->update();
    }
}

void OrderListView::FollowAppearance() {
    constexpr int kHeaderFrame = 8;
    header()->setMinimumHeight(fontMetrics().height() + kHeaderFrame);
    DistributeColumns();
    header()->viewport()->update();
}

void OrderListView::SetHiddenColumns(std::set<OrderColumn> hidden) {
    m_hidden = std::move(hidden);
    DistributeColumns();
}

// What doesn't fit: the reason is elided first, then columns go, the costs before all others.
void OrderListView::DistributeColumns() {
    const QFontMetrics metrics = fontMetrics();
    EnumArray<OrderColumn, int> widths{};
    for (const OrderColumnRow& column : OrderColumns()) {
        widths[column.column] =
            m_hidden.contains(column.column) ? 0 : OrderDelegate::WidthOf(column, metrics);
    }
    const auto surplus = [&] {
        return viewport()->width() - std::accumulate(widths.begin(), widths.end(), 0);
    };
    const OrderColumn flexible =
        m_hidden.contains(OrderColumn::Wait) ? OrderColumn::Order : OrderColumn::Wait;
    const int least =
        std::min(widths[flexible],
                 metrics.horizontalAdvance(QStringLiteral("1.000 Kristall")) + metrics.height());
    for (const auto& group : kDropped) {
        if (surplus() + widths[flexible] - least < 0) {
            for (const OrderColumn column : group) {
                widths[column] = 0;
            }
        }
    }
    widths[flexible] = std::max(least, widths[flexible] + surplus());
    for (const OrderColumnRow& column : OrderColumns()) {
        const auto section = static_cast<int>(column.column);
        header()->setSectionHidden(section, widths[column.column] == 0);
        if (widths[column.column] > 0) {
            header()->resizeSection(section, widths[column.column]);
        }
    }
    updateGeometries();
}

void OrderListView::Refresh(const std::vector<std::size_t>& chosen,
                            std::optional<std::size_t> insertBefore) {
    m_model->Refresh();
    Choose(chosen, insertBefore);
}

void OrderListView::Choose(const std::vector<std::size_t>& rows,
                           std::optional<std::size_t> insertBefore) {
    QItemSelection chosen;
    QModelIndex first;
    for (const std::size_t row : rows) {
        const QModelIndex index = m_model->index(static_cast<int>(row), 0);
        if (index.isValid()) {
            first = first.isValid() ? first : index;
            chosen.select(index, index);
        }
    }
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    selectionModel()->select(chosen,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_insertBefore = insertBefore;
    viewport()->update();
    if (first.isValid()) {
        scrollTo(first);
    }
}

std::vector<std::size_t> OrderListView::ChosenRows() const {
    std::vector<std::size_t> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        rows.push_back(static_cast<std::size_t>(index.row()));
    }
    std::ranges::sort(rows);
    return rows;
}

std::size_t OrderListView::InsertPosition() const {
    const std::size_t size = m_document.CurrentPlan().LV_Bauliste.Orders().Size();
    if (m_insertBefore) {
        return std::min(*m_insertBefore, size);
    }
    const auto chosen = ChosenRows();
    return chosen.empty() ? size : chosen.front();
}

void OrderListView::startDrag(Qt::DropActions /*actions*/) {
    auto* const mimeData = new QMimeData;
    mimeData->setData(kRowsMimeType, {});
    // The toolkit deletes it after the drop.
    auto* const drag = new QDrag(this);
    drag->setMimeData(mimeData);
    drag->exec(Qt::MoveAction);
    m_target = -1;
    viewport()->update();
}

int OrderListView::DropRowAt(const QPoint& position) const {
    const QModelIndex index = indexAt(position);
    if (!index.isValid()) {
        return m_model->rowCount();
    }
    return index.row() + (position.y() > visualRect(index).center().y() ? 1 : 0);
}

void OrderListView::OfferDrop(QDropEvent& event) {
    const bool rows = event.source() == this && event.mimeData()->hasFormat(kRowsMimeType);
    const bool picture = event.mimeData()->hasFormat(kItemMimeType) && event.source() != nullptr;
    event.setDropAction(rows ? Qt::MoveAction : Qt::CopyAction);
    event.setAccepted(rows || picture);
    m_target = event.isAccepted() ? DropRowAt(event.position().toPoint()) : -1;
    viewport()->update();
}

void OrderListView::dragEnterEvent(QDragEnterEvent* event) {
    OfferDrop(*event);
}

void OrderListView::dragMoveEvent(QDragMoveEvent* event) {
    // Scrolls a long list at its edges.
    if (const QModelIndex index = indexAt(event->position().toPoint()); index.isValid()) {
        scrollTo(index.siblingAtRow(std::max(0, index.row() - 1)));
        scrollTo(index.siblingAtRow(std::min(m_model->rowCount() - 1, index.row() + 1)));
    }
    OfferDrop(*event);
}

void OrderListView::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
    m_target = -1;
    viewport()->update();
}

void OrderListView::dropEvent(QDropEvent* event) {
    OfferDrop(*event);
    const auto target = static_cast<std::size_t>(DropRowAt(event->position().toPoint()));
    m_target = -1;
    viewport()->update();
    if (event->source() == this) {
        emit RowsDropped(target);
    } else if (event->isAccepted()) {
        emit PictureDropped(QString::fromUtf8(event->mimeData()->data(kItemMimeType)), target);
    }
}

void OrderListView::paintEvent(QPaintEvent* event) {
    ListView::paintEvent(event);
    PaintInsertLine();
}

void OrderListView::PaintInsertLine() {
    const int rows = m_model->rowCount();
    const int before = m_target >= 0 ? m_target : static_cast<int>(InsertPosition());
    const QRect slot = visualRect(m_model->index(std::min(before, rows - 1), 0));
    constexpr int kWidth = 2;
    constexpr int kTriangle = 7;
    const int y = rows == 0 ? 1 : before < rows ? std::max(1, slot.top()) : slot.bottom();
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent = ColorsFor(palette())[Color::Accent];
    painter.fillRect(0, y - 1, viewport()->width(), kWidth, accent);
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawPolygon(Triangle(0, y, kTriangle));
    painter.drawPolygon(Triangle(viewport()->width(), y, -kTriangle));
}

}  // namespace tarvelin
