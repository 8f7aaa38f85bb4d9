// What a list view shows of rows that live elsewhere.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>

namespace tarvelin {

/// Reads its rows when the view asks, and keeps no copy. Rows may come or go at the end; after any
/// change `Aktualisiere` tells the view.
class Tabellenmodell : public QAbstractTableModel {
    Q_OBJECT

  public:
    struct Quelle {
        std::function<std::size_t()> Zeilen;
        /// The text of a cell; row and column count from 0.
        std::function<QString(std::size_t, int)> Text;
        /// Beside the text, where a list has them: colour of a cell, and the hint of a row, which a
        /// screen reader adds.
        std::function<QColor(std::size_t, int)> Farbe = {};
        std::function<QString(std::size_t)> Beschreibung = {};
    };

    Tabellenmodell(QStringList ueberschriften, Quelle quelle, QObject* parent);

    void Aktualisiere();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

  private:
    QStringList m_ueberschriften;
    Quelle m_quelle;
    int m_zeilen = 0;
};

}  // namespace tarvelin
