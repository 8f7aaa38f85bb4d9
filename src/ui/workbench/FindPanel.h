// Shows what a find would change, before it is taken over.
#pragma once

#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

#include "search/FindSummary.h"
#include "ui/look/IconPaths.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/ListView.h"
#include "ui/widgets/TableModel.h"
#include "ui/workbench/ItemCounts.h"
#include "ui/workbench/PageParts.h"

namespace tarvelin {

class FindPanel : public QWidget {
    Q_OBJECT

  public:
    explicit FindPanel(QWidget* parent);

    void SetPictures(const PerItem<QPixmap>& pictures);
    /// Call it when the palette or the font has changed.
    void FollowAppearance();

    void ShowFind(const FindSummary& find);
    /// Why there is none.
    void ShowNothing(const QString& why);

  signals:
    void CompareWanted();
    void AcceptWanted();

  private:
    void AddGain(QVBoxLayout& layout);
    void AddRates(QVBoxLayout& layout);
    void AddTable(QVBoxLayout& layout);
    void AddButtons(QVBoxLayout& layout);
    void ShowGain();
    void EnableButtons();
    void FitTable();
    void Headline(const QString& text, Color color, std::optional<Symbol> symbol);
    void ShowRates();
    /// One side of a row of the table, if it has one.
    [[nodiscard]] const std::optional<ListedOrder>& SideOf(std::size_t row, int column) const;

    FindSummary m_find;
    /// What stands in place of the gain if there is nothing to take over.
    QString m_why;
    PerItem<QPixmap> m_pictures;
    QLabel* m_gainSymbol;
    TypeLabel* m_gain;
    QWidget* m_details;
    QLabel* m_durations;
    QLabel* m_sittings;
    ItemCounts* m_fewer;
    ItemCounts* m_more;
    PerResource<QLabel*> m_rateSymbols{};
    PerResource<QLabel*> m_rates{};
    QLabel* m_verdict;
    QLabel* m_caption;
    TableModel* m_rows;
    ListView* m_table;
    QPushButton* m_compareButton;
    QPushButton* m_acceptButton;
};

}  // namespace tarvelin
