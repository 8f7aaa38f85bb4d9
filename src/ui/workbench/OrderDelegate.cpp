// Layout and colors of the cells.
#include "ui/workbench/OrderDelegate.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

#include "simulation/RunTexts.h"
#include "ui/look/Icons.h"
#include "ui/look/WaitLook.h"

namespace tarvelin {

namespace {

constexpr int kMargin = 6;
constexpr int kGap = 4;
constexpr int kPicture = 18;
constexpr int kSymbol = 12;
/// The column of marks before the numbers.
constexpr int kMarks = 14;
/// The bar at the left of a row that is chosen or comes next.
constexpr int kBar = 3;

/// The place of a picture or symbol before a text.
int LeadWidth(OrderColumn column) {
    switch (column) {
        case OrderColumn::Number:
            return kMarks;
        case OrderColumn::Order:
            return kPicture + kGap;
        case OrderColumn::Wait:
        case OrderColumn::Factor:
            return kSymbol + kGap;
        default:
            return 0;
    }
}

}  // namespace

struct OrderDelegate::Cell {
    QPainter& painter;
    QRect rect;
    QString text;
    QFont font;
    bool right;
    const WorkbenchColors& colors;

    [[nodiscard]] QRect Lead(int side) const {
        return {rect.left() + kMargin, rect.center().y() - side / 2 + 1, side, side};
    }
    void DrawText(int lead, Color color) const {
        painter.setFont(font);
        painter.setPen(colors[color]);
        const QRect place = rect.adjusted(kMargin + lead, 0, -kMargin, 0);
        painter.drawText(
            place, static_cast<int>(Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft)),
            QFontMetrics(font).elidedText(text, Qt::ElideRight, place.width()));
    }
};

OrderDelegate::OrderDelegate(const Document& document, QObject* parent)
    : QStyledItemDelegate(parent), m_document(document) {}

int OrderDelegate::WidthOf(const OrderColumnRow& column, const QFontMetrics& metrics) {
    const int caption = metrics.horizontalAdvance(QString::fromUtf8(column.caption)) +
                        (column.resource ? metrics.ascent() + kGap : 0);
    const int text =
        metrics.horizontalAdvance(QString::fromUtf8(column.widest)) + LeadWidth(column.column);
    // Widths are rounded; a text that just fits is never elided.
    constexpr int kSpare = 2;
    return std::max(caption, text) + 2 * kMargin + kSpare;
}

QSize OrderDelegate::sizeHint(const QStyleOptionViewItem& option,
                              const QModelIndex& /*index*/) const {
    constexpr int kFrame = 2;
    return {0, std::max(kPicture + 2 * kFrame, option.fontMetrics.height() + 2 * kFrame)};
}

void OrderDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QStyle& style =
        *(option.widget == nullptr ? QApplication::style() : option.widget->style());
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, option.widget);
    const auto row = static_cast<std::size_t>(index.row());
    const auto column = static_cast<OrderColumn>(index.column());
    const WorkbenchColors colors = ColorsFor(option.palette);
    const Cell cell{.painter = *painter,
                    .rect = option.rect,
                    .text = item.text,
                    .font = option.font,
                    .right = OrderColumns()[column].right,
                    .colors = colors};
    painter->save();
    const bool isChosen = (option.state & QStyle::State_Selected) != 0;
    if ((option.state & QStyle::State_MouseOver) != 0 && !isChosen) {
        painter->fillRect(option.rect, colors[Color::Hover]);
    }
    if (column == OrderColumn::Number && isChosen) {
        painter->fillRect(QRect(option.rect.topLeft(), QSize(kBar, option.rect.height())),
                          colors[Color::Accent]);
    }
    switch (column) {
        case OrderColumn::Number:
            PaintNumber(cell, row);
            break;
        case OrderColumn::Order:
            PaintOrder(cell, row);
            break;
        case OrderColumn::Wait:
            PaintWait(cell, row);
            break;
        case OrderColumn::Factor:
            PaintFactor(cell, row);
            break;
        default:
            cell.DrawText(0, Color::Text);
    }
    painter->restore();
}

void OrderDelegate::PaintNumber(const Cell& cell, std::size_t row) const {
    constexpr int kSide = 10;
    const auto mark = [&](Symbol symbol, Color color) {
        PaintSymbol(cell.painter, symbol,
                    QRect(cell.rect.left() + kBar + 1, cell.rect.center().y() - kSide / 2 + 1,
                          kSide, kSide),
                    cell.colors[color]);
    };
    Cell number = cell;
    if (m_marks.refused == row) {
        mark(Symbol::Cross, Color::Deficit);
    } else if (m_marks.next == row) {
        cell.painter.fillRect(QRect(cell.rect.topLeft(), QSize(kBar, cell.rect.height())),
                              cell.colors[Color::Now]);
        mark(Symbol::Next, Color::Now);
    } else if (m_marks.sleepless.contains(row)) {
        mark(Symbol::Sleep, Color::WarnText);
    }
    number.font.setBold(m_marks.next == row);
    number.DrawText(0, m_marks.refused == row ? Color::Deficit : Color::Text);
}

void OrderDelegate::PaintOrder(const Cell& cell, std::size_t row) const {
    const Order& order = m_document.CurrentPlan().LV_Bauliste.Orders().All()[row];
    const QRect place = cell.Lead(kPicture);
    if (order.kind == Order::Kind::Item) {
        cell.painter.setRenderHint(QPainter::SmoothPixmapTransform);
        cell.painter.drawPixmap(place, m_pictures[order.item]);
    } else {
        constexpr int kInset = (kPicture - kSymbol) / 2;
        PaintSymbol(cell.painter, Symbol::Energy, place.adjusted(kInset, kInset, -kInset, -kInset),
                    cell.colors[Color::Energy]);
    }
    cell.DrawText(LeadWidth(OrderColumn::Order), Color::Text);
}

void OrderDelegate::PaintWait(const Cell& cell, std::size_t row) const {
    const auto& trace = m_document.Trace();
    const StartEvent* const start = trace ? trace->StartOf(row) : nullptr;
    if (start != nullptr && !cell.text.isEmpty()) {
        const WaitLook look = LookOf(*trace, *start);
        PaintSymbol(cell.painter, look.symbol, cell.Lead(kSymbol), cell.colors[look.symbolColor]);
    }
    cell.DrawText(LeadWidth(OrderColumn::Wait), Color::Text);
}

void OrderDelegate::PaintFactor(const Cell& cell, std::size_t row) const {
    const bool lacks =
        m_document.CurrentPlan().LV_Bauliste.Rows()[row].SubItems2Color == TextColor::Red;
    if (lacks) {
        PaintSymbol(cell.painter, Symbol::Falls, cell.Lead(kSymbol), cell.colors[Color::Deficit]);
    }
    cell.DrawText(LeadWidth(OrderColumn::Factor), lacks ? Color::Deficit : Color::Text);
}

}  // namespace tarvelin
