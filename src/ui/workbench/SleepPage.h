// The page that enters nights by a rule, and shows the sleep windows of the plan.
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimeEdit>
#include <QVBoxLayout>
#include <QWidget>
#include <array>
#include <vector>

#include "document/Document.h"
#include "document/NightProposal.h"
#include "ui/widgets/ListView.h"
#include "ui/widgets/TableModel.h"
#include "ui/workbench/NightBar.h"

namespace tarvelin {

class SleepPage : public QWidget {
    Q_OBJECT

  public:
    /// `document` must outlive the page.
    SleepPage(Document& document, QWidget* parent);

    /// Call it after a change of the plan.
    void Refresh();
    /// Takes the rule from the plan's nights, if it has some.
    void TakeRuleFromPlan();
    [[nodiscard]] SleepRule Rule() const;
    /// The nights that the page shows and the plan doesn't have.
    [[nodiscard]] std::vector<cSchlafzeit> ProposedNights() const {
        return NewNights(m_proposal.filled);
    }
    /// Enters the nights that the page shows.
    void EnterNights();

  signals:
    void ProposalChanged();
    void Notice(const std::string& text);

  private:
    /// Of one evening.
    struct NightInputs {
        QLabel* name;
        QTimeEdit* from;
        QTimeEdit* to;
        NightBar* bar;
    };

    void AddRule(QVBoxLayout& layout);
    void AddNight(QGridLayout& grid, int weekday);
    void AddOverlapChoice(QVBoxLayout& layout);
    void AddEffect(QVBoxLayout& layout);
    void AddTable(QVBoxLayout& layout);
    void AddRowInputs(QVBoxLayout& layout);
    void SetRule(const SleepRule& rule);
    void ShowRule();
    void ShowEffect();
    void AddRow();
    void RemoveRows();
    [[nodiscard]] AtOverlap Overlap() const;
    [[nodiscard]] QString CellText(std::size_t row, int column) const;

    Document& m_document;
    QCheckBox* m_allAlike;
    /// At the weekday of the evening - 1, so Sunday first.
    std::array<NightInputs, 7> m_nights{};
    QButtonGroup* m_overlap;
    QLabel* m_effect;
    QPushButton* m_enterButton;
    QPushButton* m_discardButton;
    NightProposal m_proposal;
    TableModel* m_rows;
    ListView* m_table;
    QDateTimeEdit* m_rowStart;
    QTimeEdit* m_rowLength;
    QPushButton* m_removeButton;
};

}  // namespace tarvelin
