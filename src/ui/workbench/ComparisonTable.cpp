// Columns of the table.
#include "ui/workbench/ComparisonTable.h"

#include <utility>

#include "ui/widgets/Controls.h"

namespace tarvelin {

ComparisonTable::ComparisonTable(const QString& name, const QString& accessibleName,
                                 const QString& first, QWidget* parent)
    : ListView(name, accessibleName, {12, 9, 9, 8}, parent),
      m_model(new TableModel({first, QStringLiteral("gemerkt"), QStringLiteral("jetzt"),
                              QStringLiteral("Unterschied")},
                             {.rows = [this] { return m_rows.size(); },
                              .text =
                                  [this](std::size_t row, int column) {
                                      return ToQString(
                                          m_rows[row].at(static_cast<std::size_t>(column)));
                                  }},
                             this)) {
    setModel(m_model);
    setTextElideMode(Qt::ElideRight);
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
