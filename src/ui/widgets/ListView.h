// A list of rows whose columns share its width.
#pragma once

#include <QHeaderView>
#include <QTreeView>
#include <vector>

namespace tarvelin {

/// A header one line high. A caption that doesn't fit is elided, and its tooltip has the whole
/// text. Alignment and icon of a caption are the model's.
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

/// The columns divide the width of the list in fixed proportions, so it never scrolls sideways.
class ListView : public QTreeView {
    Q_OBJECT

  public:
    /// `shares` are the relative widths of the columns.
    ListView(const QString& name, const QString& accessibleName, std::vector<int> shares,
             QWidget* parent);

    void setModel(QAbstractItemModel* model) override;
    /// Rows are at least this high, in pixels.
    void SetRowHeight(int height);

  signals:
    /// The pointer has moved over this row. The index is invalid beside the rows and when the
    /// pointer leaves the list.
    void MouseMove(const QModelIndex& row);

  protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

    /// Sets the widths of the columns.
    virtual void DistributeColumns();

  private:
    std::vector<int> m_shares;
};

}  // namespace tarvelin
