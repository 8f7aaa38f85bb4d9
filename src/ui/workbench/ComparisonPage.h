// The page that compares the plan with a file or with a remembered state.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <optional>
#include <string>
#include <vector>

#include "document/Document.h"
#include "simulation/Comparison.h"
#include "ui/services/Environment.h"
#include "ui/workbench/ComparisonTable.h"

namespace tarvelin {

class ComparisonPage : public QWidget {
    Q_OBJECT

  public:
    /// Both must outlive the page.
    ComparisonPage(const Document& document, const Environment& environment, QWidget* parent);

    /// Call it when the document has played another run.
    void ShowOwnRun();
    /// What the plan is compared with, if anything.
    [[nodiscard]] const std::optional<RunTrace>& OtherRun() const { return m_other; }
    /// What it is, in a word.
    [[nodiscard]] const QString& OtherName() const { return m_otherName; }

    /// Compares with the plan as it is now. Does nothing if that has no run.
    void Remember();
    /// `name` says what it is, `column` in a word.
    void CompareWith(std::optional<RunTrace> other, const QString& name, const QString& column);

  signals:
    void OtherRunChanged();
    void Notice(const std::string& text);
    /// A row of the plan as it is now was pointed at, from 0.
    void RowWanted(std::size_t row);

  private:
    void Arrange();
    void LoadOther();
    void ClearOther();
    void FindRow(std::size_t difference);

    const Document& m_document;
    const Environment& m_environment;
    std::optional<RunTrace> m_other;
    QString m_otherName;
    /// What the table of orders shows.
    std::vector<ComparisonRow> m_differences;
    QPushButton* m_rememberButton;
    QPushButton* m_fileButton;
    QPushButton* m_clearButton;
    QLabel* m_nameLabel;
    ComparisonTable* m_summaryTable;
    ComparisonTable* m_orderTable;
};

}  // namespace tarvelin
