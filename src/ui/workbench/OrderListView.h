// The workbench's list of orders, in which several rows can be chosen and dragged.
#pragma once

#include <set>
#include <vector>

#include "document/Document.h"
#include "ui/widgets/ListView.h"
#include "ui/widgets/TableModel.h"
#include "ui/workbench/OrderDelegate.h"

namespace tarvelin {

/// Takes drops of its own rows and of pictures of the palette. A line shows where a new row goes.
class OrderListView : public ListView {
    Q_OBJECT

  public:
    /// Shows the rows of `document`, which must outlive the list, and its trace.
    OrderListView(const Document& document, QWidget* parent);

    void SetPictures(const PerItem<QPixmap>& pictures);
    void SetMarks(const OrderMarks& marks);
    /// Call it when the palette or the font has changed.
    void FollowAppearance();

    /// Call it when the rows have changed. Chooses these rows and scrolls to the first; new rows go
    /// in front of it, or of `insertBefore`.
    void Refresh(const std::vector<std::size_t>& chosen,
                 std::optional<std::size_t> insertBefore = std::nullopt);
    void Choose(const std::vector<std::size_t>& rows,
                std::optional<std::size_t> insertBefore = std::nullopt);
    /// In ascending order.
    [[nodiscard]] std::vector<std::size_t> ChosenRows() const;
    /// The row in front of which a new one goes; the row count means the end.
    [[nodiscard]] std::size_t InsertPosition() const;

    /// Columns that the user doesn't want to see. Others may be hidden where there is no room.
    [[nodiscard]] const std::set<OrderColumn>& HiddenColumns() const { return m_hidden; }
    void SetHiddenColumns(std::set<OrderColumn> hidden);

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
    void DistributeColumns() override;

  private:
    class Model;

    void OfferDrop(QDropEvent& event);
    [[nodiscard]] int DropRowAt(const QPoint& position) const;
    void PaintInsertLine();

    const Document& m_document;
    Model* m_model;
    OrderDelegate* m_delegate;
    std::set<OrderColumn> m_hidden;
    std::optional<std::size_t> m_insertBefore;
    /// The row in front of which a drop would go; -1 without a drag.
    int m_target = -1;
};

}  // namespace tarvelin
