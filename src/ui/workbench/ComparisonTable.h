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
    TextTable m_rows;
    TableModel* m_model;
};

}  // namespace tarvelin
