// A table of what differs between two runs.
#pragma once

#include "export/TextTable.h"
#include "ui/widgets/ListView.h"
#include "ui/widgets/TableModel.h"

namespace tarvelin {

class ComparisonTable : public ListView {
    Q_OBJECT

  public:
    /// `first` is the caption of the first column.
    ComparisonTable(const QString& name, const QString& accessibleName, const QString& first,
                    QWidget* parent);

    void ShowRows(TextTable rows);
    /// The caption of the column of the other plan; "jetzt" stands beside it.
    void SetOtherCaption(const QString& caption);

  private:
    [[nodiscard]] QString TextAt(std::size_t row, int column) const;
    /// "Metallmine 2: gemerkt 00:02:47, jetzt 00:04:42, Unterschied +00:01:55".
    [[nodiscard]] QString InFull(std::size_t row) const;

    TextTable m_rows;
    TableModel* m_model;
};

}  // namespace tarvelin
