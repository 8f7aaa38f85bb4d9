// Reports changes to the view as rows added or removed at the end.
#include "ui/widgets/TableModel.h"

#include <QColor>
#include <QIcon>
#include <utility>

namespace tarvelin {

TableModel::TableModel(QStringList headers, Provider provider, QObject* parent)
    : QAbstractTableModel(parent), m_headers(std::move(headers)), m_provider(std::move(provider)) {}

void TableModel::Refresh() {
    const auto rows = static_cast<int>(m_provider.rows());
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    } else if (rows < m_rows) {
        beginRemoveRows({}, rows, m_rows - 1);
        m_rows = rows;
        endRemoveRows();
    }
    if (rows > 0) {
        emit dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
    }
}

void TableModel::SetHeader(int column, const QString& caption) {
    m_headers[column] = caption;
    emit headerDataChanged(Qt::Horizontal, column, column);
}

int TableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int TableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_headers.size());
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    // A view may ask while rows are being removed.
    if (!index.isValid() || row >= m_provider.rows()) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return m_provider.text(row, index.column());
    }
    if (role == Qt::ForegroundRole && m_provider.color) {
        return m_provider.color(row, index.column());
    }
    if (role == Qt::DecorationRole && m_provider.picture) {
        const QPixmap picture = m_provider.picture(row, index.column());
        return picture.isNull() ? QVariant() : QVariant(QIcon(picture));
    }
    if ((role == Qt::AccessibleDescriptionRole || role == Qt::ToolTipRole) &&
        m_provider.description) {
        return m_provider.description(row);
    }
    return {};
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        return m_headers.value(section);
    }
    return {};
}

}  // namespace tarvelin
