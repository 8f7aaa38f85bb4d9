// Choosing, dragging and dropping rows.
#include "ui/workbench/OrderListView.h"

#include <QDrag>
#include <QDragEnterEvent>
#include <QFontMetrics>
#include <QItemSelection>
#include <QMimeData>
#include <QPainter>
#include <algorithm>

#include "simulation/RunTexts.h"
#include "simulation/StatusTexts.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemPicture.h"
#include "ui/workbench/WorkbenchColors.h"

namespace tarvelin {

namespace {

constexpr QLatin1String kRowsMimeType("application/x-tarvelin-zeilen");

enum Column { kNumber, kOrder, kStart, kFinish, kDelay, kFactor };

std::string CellText(const Document& document, std::size_t row, int column) {
    const BuildListRow& texts = document.CurrentPlan().LV_Bauliste.Rows()[row];
    const auto& trace = document.Trace();
    const StartEvent* const start = trace ? trace->StartOf(row) : nullptr;
    const auto moment = [&](SimTime StartEvent::*time) {
        return start != nullptr ? ShortDateTimeText(trace->conditions.WallClock(start->*time)) : "";
    };
    switch (column) {
        case kNumber:
            return texts.text;
        case kOrder:
            return texts.SubItems1;
        case kStart:
            return moment(&StartEvent::start);
        case kFinish:
            return moment(&StartEvent::finish);
        case kDelay:
            return trace ? DelayText(*trace, row) : "";
        default:
            return texts.SubItems2;
    }
}

/// Fits the usual texts of the columns.
std::vector<int> ColumnWidths() {
    std::vector<int> widths;
    const QFontMetrics metrics{QFont()};
    for (const char* const text :
         {"254 ", "Raumschiffwerft Stufe: 10 ", "Mo 20.11. 00:00:00 ", "Mo 20.11. 00:00:00 ",
          "Schlafzeit 20:00:00 bis 08:00:00 ", "Prod % "}) {
        widths.push_back(metrics.horizontalAdvance(QString::fromLatin1(text)));
    }
    return widths;
}

class DraggableRows : public TableModel {
  public:
    using TableModel::TableModel;

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override {
        const auto flags = TableModel::flags(index);
        return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
    }
};

}  // namespace

OrderListView::OrderListView(const Document& document, QWidget* parent)
    : ListView(QStringLiteral("LV_Werkbank"), QStringLiteral("Aufträge"), ColumnWidths(), parent),
      m_document(document),
      m_model(new DraggableRows(
          {QStringLiteral("Nr."), QStringLiteral("Auftrag"), QStringLiteral("Start"),
           QStringLiteral("Fertig"), QStringLiteral("Grund"), QStringLiteral("Prod %")},
          Provider(), this)) {
    setModel(m_model);
    setSelectionMode(ExtendedSelection);
    setTextElideMode(Qt::ElideRight);
    setDragEnabled(true);
    setAcceptDrops(true);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &OrderListView::ChoiceChanged);
}

TableModel::Provider OrderListView::Provider() const {
    const Document& document = m_document;
    return {.rows = [&document] { return document.CurrentPlan().LV_Bauliste.Rows().size(); },
            .text = [&document](std::size_t row,
                                int column) { return ToQString(CellText(document, row, column)); },
            .color =
                [this](std::size_t row, int column) {
                    const auto& rows = m_document.CurrentPlan().LV_Bauliste.Rows();
                    const bool red =
                        column == kFactor && rows[row].SubItems2Color == TextColor::Red;
                    return red ? m_deficitColor : palette().color(QPalette::Text);
                },
            .description =
                [&document](std::size_t row) {
                    // Narrow columns elide their texts.
                    std::string text = CellText(document, row, kOrder);
                    for (const int column : {kStart, kFinish, kDelay}) {
                        text += "\n" + CellText(document, row, column);
                    }
                    return ToQString(text).trimmed();
                }};
}

void OrderListView::Refresh(const std::vector<std::size_t>& chosen) {
    m_model->Refresh();
    Choose(chosen);
}

void OrderListView::Choose(const std::vector<std::size_t>& rows) {
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
    if (m_target < 0) {
        return;
    }
    const int rows = m_model->rowCount();
    const QRect slot = visualRect(m_model->index(std::min(m_target, rows - 1), 0));
    const int y = rows == 0 ? 0 : m_target < rows ? slot.top() : slot.bottom();
    QPainter painter(viewport());
    painter.setPen(QPen(ColorsFor(palette())[Color::Accent], 2));
    painter.drawLine(0, y, viewport()->width(), y);
}

}  // namespace tarvelin
