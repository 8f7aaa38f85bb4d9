// Columns of the table.
#include "ui/workbench/ComparisonTable.h"

#include <utility>

#include "ui/look/ShortDays.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/PageParts.h"

namespace tarvelin {

ComparisonTable::ComparisonTable(const QString& name, const QString& accessibleName,
                                 const QString& first, QWidget* parent)
    : ListView(name, accessibleName, {11, 9, 9, 10}, parent),
      m_model(
          new TableModel({first, QStringLiteral("gemerkt"), QStringLiteral("jetzt"),
                          QStringLiteral("Unterschied")},
                         {.rows = [this] { return m_rows.size(); },
                          .text = [this](std::size_t row,
                                         int column) { return WithShortDays(TextAt(row, column)); },
                          .description = [this](std::size_t row) { return InFull(row); }},
                         this)) {
    setModel(m_model);
    setTextElideMode(Qt::ElideRight);
    setAlternatingRowColors(true);
    SetRowHeight(kTableRow);
}

QString ComparisonTable::TextAt(std::size_t row, int column) const {
    return ToQString(m_rows[row].at(static_cast<std::size_t>(column)));
}

QString ComparisonTable::InFull(std::size_t row) const {
    QString text = TextAt(row, 0) + QStringLiteral(": ");
    QString between;
    for (int column = 1; column < m_model->columnCount(); ++column) {
        if (const QString value = TextAt(row, column); !value.isEmpty()) {
            const QString caption = model()->headerData(column, Qt::Horizontal).toString();
            text += between + caption + QStringLiteral(" ") + value;
            between = QStringLiteral(", ");
        }
    }
    return text;
}

void ComparisonTable::SetOtherCaption(const QString& caption) {
    constexpr int kOther = 1;
    m_model->SetHeader(kOther, caption);
}

void ComparisonTable::ShowRows(TextTable rows) {
    m_rows = std::move(rows);
    m_model->Refresh();
}

}  // namespace tarvelin
