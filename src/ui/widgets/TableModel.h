// What a list view shows of rows that live elsewhere.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>

namespace tarvelin {

/// Reads its rows when the view asks, and keeps no copy. Rows may come or go at the end; after any
/// change `Refresh` tells the view.
class TableModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    struct Provider {
        std::function<std::size_t()> rows;
        /// The text of a cell; row and column count from 0.
        std::function<QString(std::size_t, int)> text;
        /// Beside the text, where a list has them: colour of a cell, and the hint of a row, which a
        /// screen reader adds.
        std::function<QColor(std::size_t, int)> color = {};
        std::function<QString(std::size_t)> description = {};
    };

    TableModel(QStringList headers, Provider provider, QObject* parent);

    void Refresh();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

  private:
    QStringList m_headers;
    Provider m_provider;
    int m_rows = 0;
};

}  // namespace tarvelin
