// The workbench's list of orders: several can be chosen, and moved by the mouse.
#pragma once

#include <vector>

#include "ui/widgets/ListView.h"
#include "ui/widgets/TableModel.h"

namespace tarvelin {

/// Rows can be dragged within the list; pictures of the palette can be dropped between them.
class OrderListView : public ListView {
    Q_OBJECT

  public:
    explicit OrderListView(const TableModel::Provider& provider, QWidget* parent);

    /// Tells that the rows have changed; these are chosen then, the first of them in sight.
    void Refresh(const std::vector<std::size_t>& chosen);
    void Choose(const std::vector<std::size_t>& rows);
    /// In the order of the list.
    [[nodiscard]] std::vector<std::size_t> ChosenRows() const;

  signals:
    void ChoiceChanged();
    /// The chosen rows were dropped in front of a row, or behind the last.
    void RowsDropped(std::size_t before);
    /// A picture of this name was dropped there.
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

    TableModel* m_model;
    /// Where a drag would drop, while it lasts.
    int m_target = -1;
};

}  // namespace tarvelin
