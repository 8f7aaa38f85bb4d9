// The page that compares the plan with a file or with a remembered state.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <optional>
#include <string>

#include "document/Document.h"
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

    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    void OtherRunChanged();
    void Notice(const std::string& text);

  private:
    void Arrange();
    void Remember();
    void LoadOther();
    void ClearOther();
    void SetOther(std::optional<RunTrace> other, const QString& name);

    const Document& m_document;
    const Environment& m_environment;
    std::optional<RunTrace> m_other;
    QPushButton* m_rememberButton;
    QPushButton* m_fileButton;
    QPushButton* m_clearButton;
    QLabel* m_nameLabel;
    ComparisonTable* m_summaryTable;
    ComparisonTable* m_orderTable;
};

}  // namespace tarvelin
