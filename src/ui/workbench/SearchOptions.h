// What a search may do and how long: folded to a line, or each with what it does in this plan.
#pragma once

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWidget>
#include <functional>
#include <vector>

#include "document/Document.h"
#include "search/PlanTask.h"

namespace tarvelin {

class SearchOptions : public QWidget {
    Q_OBJECT

  public:
    /// `document` must outlive it. `chosen` gives the chosen rows, counted from 0; `now` the clock.
    SearchOptions(const Document& document, std::function<std::vector<std::size_t>()> chosen,
                  std::function<DateTime()> now, QWidget* parent);

    /// Without the goal.
    [[nodiscard]] SearchRequest Request() const;
    [[nodiscard]] SearchBudget Budget() const;
    /// Call it when the plan, the chosen rows or the minute have changed.
    void ShowEffects();

  private:
    QLabel* AddOption(QVBoxLayout& layout, std::initializer_list<QWidget*> inputs,
                      const char* hint);
    void Unfold(bool open);
    [[nodiscard]] QString PinnedEffect() const;
    [[nodiscard]] QString ProductionEffect() const;
    [[nodiscard]] QString FromNowEffect() const;
    [[nodiscard]] QString SittingsEffect() const;
    [[nodiscard]] QString Summary() const;

    const Document& m_document;
    std::function<std::vector<std::size_t>()> m_chosen;
    std::function<DateTime()> m_now;
    QToolButton* m_fold;
    QLabel* m_summary;
    QWidget* m_details;
    QCheckBox* m_pinned;
    QCheckBox* m_free;
    QCheckBox* m_fromNow;
    QCheckBox* m_sittings;
    QDoubleSpinBox* m_slack;
    QSpinBox* m_tries;
    QLabel* m_pinnedEffect;
    QLabel* m_freeEffect;
    QLabel* m_fromNowEffect;
    QLabel* m_sittingsEffect;
};

}  // namespace tarvelin
