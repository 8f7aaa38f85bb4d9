// Rows told to a view as added at the end or gone from it.
#include "ui/widgets/TableModel.h"

#include <QColor>
#include <utility>

namespace tarvelin {

Tabellenmodell::Tabellenmodell(QStringList ueberschriften, Quelle quelle, QObject* parent)
    : QAbstractTableModel(parent),
      m_ueberschriften(std::move(ueberschriften)),
      m_quelle(std::move(quelle)) {}

void Tabellenmodell::Aktualisiere() {
    const auto zeilen = static_cast<int>(m_quelle.Zeilen());
    if (zeilen > m_zeilen) {
        beginInsertRows({}, m_zeilen, zeilen - 1);
        m_zeilen = zeilen;
        endInsertRows();
    } else if (zeilen < m_zeilen) {
        beginRemoveRows({}, zeilen, m_zeilen - 1);
        m_zeilen = zeilen;
        endRemoveRows();
    }
    if (zeilen > 0) {
        emit dataChanged(index(0, 0), index(zeilen - 1, columnCount() - 1));
    }
}

int Tabellenmodell::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_zeilen;
}

int Tabellenmodell::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_ueberschriften.size());
}

QVariant Tabellenmodell::data(const QModelIndex& index, int role) const {
    const auto zeile = static_cast<std::size_t>(index.row());
    // A view may ask while rows are going.
    if (!index.isValid() || zeile >= m_quelle.Zeilen()) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return m_quelle.Text(zeile, index.column());
    }
    if (role == Qt::ForegroundRole && m_quelle.Farbe) {
        return m_quelle.Farbe(zeile, index.column());
    }
    if ((role == Qt::AccessibleDescriptionRole || role == Qt::ToolTipRole) &&
        m_quelle.Beschreibung) {
        return m_quelle.Beschreibung(zeile);
    }
    return {};
}

QVariant Tabellenmodell::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        return m_ueberschriften.value(section);
    }
    return {};
}

}  // namespace tarvelin
