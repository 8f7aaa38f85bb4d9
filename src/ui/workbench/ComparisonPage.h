// The page that compares the plan with a file or with a remembered state.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <optional>
#include <string>
#include <vector>

#include "simulation/ComparisonTexts.h"
#include "simulation/RunTrace.h"
#include "ui/services/Environment.h"
#include "ui/widgets/ListView.h"
#include "ui/widgets/TableModel.h"

namespace tarvelin {

class ComparisonPage : public QWidget {
    Q_OBJECT

  public:
    /// `environment` must outlive the page.
    ComparisonPage(const Environment& environment, QWidget* parent);
    ComparisonPage(const ComparisonPage&) = delete;
    ComparisonPage& operator=(const ComparisonPage&) = delete;
    ~ComparisonPage() override;

    /// The plan's current run; nothing if it can't be run.
    void SetOwnRun(const std::optional<RunTrace>& own);
    /// What the plan is compared with, if anything.
    [[nodiscard]] const std::optional<RunTrace>& OtherRun() const { return m_other; }

    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    void OtherRunChanged();
    void Notice(const std::string& text);

  private:
    void Arrange();
    ListView* NewTable(const char* name, const char* accessibleName, const char* first,
                       const std::vector<ComparisonText>& rows, TableModel** model);
    void Remember();
    void LoadOther();
    void ClearOther();
    void SetOther(std::optional<RunTrace> other, const QString& name);
    void Recompare();

    const Environment& m_environment;
    std::optional<RunTrace> m_own;
    std::optional<RunTrace> m_other;
    std::vector<ComparisonText> m_summaries;
    std::vector<ComparisonText> m_orders;
    QPushButton* m_rememberButton;
    QPushButton* m_fileButton;
    QPushButton* m_clearButton;
    QLabel* m_nameLabel;
    TableModel* m_summaryModel = nullptr;
    TableModel* m_orderModel = nullptr;
    ListView* m_summaryList;
    ListView* m_orderList;
};

}  // namespace tarvelin
