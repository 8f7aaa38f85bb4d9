// The group "Bauliste:": the build list, its buttons, and the stocks after the last run.
#pragma once

#include <QGridLayout>

#include "plan/BuildList.h"
#include "simulation/ResultTexts.h"
#include "ui/mainwindow/BuildListView.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/TableModel.h"

namespace tarvelin {

class BuildListGroup : public GroupBox {
    Q_OBJECT

  public:
    /// Shows the rows of `list`, which must outlive the group.
    BuildListGroup(const BuildList& list, QWidget* parent);

    /// After a change of the list.
    void ShowList() { m_model->Refresh(); }
    void ScrollToLast() { LV_Bauliste->scrollToBottom(); }
    void ShowResult(const ResultTexts& texts);

    BuildListView* const LV_Bauliste;
    QPushButton* const Cmd_Undo;
    QPushButton* const Cmd_Clear;
    QPushButton* const Cmd_Simulate;

  private:
    NumberLabel* NewStock(int number, int width, const QString& hint, const QString& name);

    TableModel* m_model;
    QGridLayout* m_stocks;
    NumberLabel* m_LBL_Met;
    NumberLabel* m_LBL_Kris;
    NumberLabel* m_LBL_Deut;
    NumberLabel* m_LBL_ENergie;
    QLabel* m_LBL_Timegone;
};

}  // namespace tarvelin
