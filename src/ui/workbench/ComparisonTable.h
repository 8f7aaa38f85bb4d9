// A table of what differs between two runs.
#pragma once

#include <vector>

#include "export/ComparisonTexts.h"
#include "ui/widgets/ListView.h"
#include "ui/widgets/TableModel.h"

namespace tarvelin {

class ComparisonTable : public ListView {
    Q_OBJECT

  public:
    /// `first` is the caption of the first column.
    ComparisonTable(const QString& name, const QString& accessibleName, const QString& first,
                    QWidget* parent);

    void ShowRows(std::vector<ComparisonText> rows);

  private:
    std::vector<ComparisonText> m_rows;
    TableModel* m_model;
};

}  // namespace tarvelin
