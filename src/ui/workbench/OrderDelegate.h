// Paints the cells of the workbench's list: pictures, symbols and marks beside the texts.
#pragma once

#include <QPixmap>
#include <QStyledItemDelegate>
#include <optional>
#include <set>

#include "document/Document.h"
#include "ui/look/IconPaths.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/workbench/OrderColumns.h"

namespace tarvelin {

/// What stands before the numbers of the rows.
struct OrderMarks {
    /// The next order to give.
    std::optional<std::size_t> next;
    /// The row for whose sake the last edit was refused.
    std::optional<std::size_t> refused;
    /// Rows that would fall into nights that are missing.
    std::set<std::size_t> sleepless;

    friend bool operator==(const OrderMarks&, const OrderMarks&) = default;
};

class OrderDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    /// `document` must outlive it.
    OrderDelegate(const Document& document, QObject* parent);

    void SetPictures(const PerItem<QPixmap>& pictures) { m_pictures = pictures; }
    void SetMarks(const OrderMarks& marks) { m_marks = marks; }
    [[nodiscard]] const OrderMarks& Marks() const { return m_marks; }

    /// What a column of this type size needs.
    [[nodiscard]] static int WidthOf(const OrderColumnRow& column, const QFontMetrics& metrics);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;

  private:
    struct Cell;

    void PaintNumber(const Cell& cell, std::size_t row) const;
    void PaintOrder(const Cell& cell, std::size_t row) const;
    void PaintWait(const Cell& cell, std::size_t row) const;
    void PaintFactor(const Cell& cell, std::size_t row) const;

    const Document& m_document;
    PerItem<QPixmap> m_pictures;
    OrderMarks m_marks;
};

}  // namespace tarvelin
