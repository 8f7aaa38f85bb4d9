// The list views of the window: rows of texts, columns that share the width.
#pragma once

#include <QHeaderView>
#include <QTreeView>
#include <vector>

namespace tarvelin {

/// The head of a list, a line high. A caption that is wider than its column is shortened, and whole
/// in a hint.
class ListHeader : public QHeaderView {
    Q_OBJECT

  public:
    explicit ListHeader(QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

  private:
    [[nodiscard]] QString CaptionAt(int column) const;
    [[nodiscard]] QString ElidedAt(int column) const;
};

/// A table of rows. The columns divide the width of the list in fixed proportions; there is never
/// a horizontal bar.
class ListView : public QTreeView {
    Q_OBJECT

  public:
    /// `shares`: one figure for each column of the model.
    ListView(const QString& name, const QString& accessibleName, std::vector<int> shares,
             QWidget* parent);

    void setModel(QAbstractItemModel* model) override;

  signals:
    /// The pointer moved over the list, at this row; over none, or when it leaves the rows, the
    /// index isn't valid.
    void MouseMove(const QModelIndex& row);

  protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

  private:
    void DistributeColumns();

    std::vector<int> m_shares;
};

}  // namespace tarvelin
