// A table model over rows that live elsewhere.
#pragma once

#include <QAbstractTableModel>
#include <QPixmap>
#include <QStringList>
#include <functional>

namespace tarvelin {

/// Reads the rows when the view asks and keeps no copy. Call `Refresh` after any change.
class TableModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    struct Provider {
        std::function<std::size_t()> rows;
        /// Of a cell; row and column count from 0.
        std::function<QString(std::size_t, int)> text;
        /// Of a cell. Optional.
        std::function<QColor(std::size_t, int)> color = {};
        /// In front of a cell's text. Optional.
        std::function<QPixmap(std::size_t, int)> picture = {};
        /// Of a row: its tooltip and accessible description. Optional.
        std::function<QString(std::size_t)> description = {};
    };

    TableModel(QStringList headers, Provider provider, QObject* parent);

    void Refresh();
    void SetHeader(int column, const QString& caption);

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
