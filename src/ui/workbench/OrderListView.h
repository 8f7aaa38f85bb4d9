// The workbench's list of orders, in which several rows can be chosen and dragged.
#pragma once

#include <vector>

#include "document/Document.h"
#include "ui/widgets/ListView.h"
#include "ui/widgets/TableModel.h"

namespace tarvelin {

/// Takes drops of its own rows and of pictures of the palette.
class OrderListView : public ListView {
    Q_OBJECT

  public:
    /// Shows the rows of `document`, which must outlive the list, and its trace.
    OrderListView(const Document& document, QWidget* parent);

    /// For factors of mines that lack energy.
    void SetDeficitColor(const QColor& color) { m_deficitColor = color; }

    /// Call it when the rows have changed. Chooses these rows and scrolls to the first.
    void Refresh(const std::vector<std::size_t>& chosen);
    void Choose(const std::vector<std::size_t>& rows);
    /// In ascending order.
    [[nodiscard]] std::vector<std::size_t> ChosenRows() const;

  signals:
    void ChoiceChanged();
    /// The chosen rows were dropped in front of row `before`; the row count means the end.
    void RowsDropped(std::size_t before);
    /// A picture with this object name was dropped there.
    void PictureDropped(const QString& picture, std::size_t before);

  protected:
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void OfferDrop(QDropEvent& event);
    [[nodiscard]] int DropRowAt(const QPoint& position) const;

    [[nodiscard]] TableModel::Provider Provider() const;

    const Document& m_document;
    QColor m_deficitColor;
    TableModel* m_model;
    /// The row in front of which a drop would go; -1 without a drag.
    int m_target = -1;
};

}  // namespace tarvelin
