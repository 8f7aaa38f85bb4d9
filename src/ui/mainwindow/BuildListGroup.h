// The group "Bauliste:": the build list, its buttons, and the stocks after the last run.
#pragma once

#include <QGridLayout>
#include <vector>

#include "document/DocumentChange.h"
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

    void ShowRows(DocumentChange::Rows change);
    void ShowResult(const ResultTexts& texts);

    [[nodiscard]] QPushButton* StartButton() const { return m_Cmd_Simulate; }
    /// The symbols of the stocks and of the energy.
    [[nodiscard]] const std::vector<QLabel*>& StockPictures() const { return m_stockPictures; }

  signals:
    /// `Source` is the object name of an item picture that was dropped on the list.
    void DragDrop(const QString& Source);
    void Cmd_Undo_Click();
    void Cmd_Clear_Click();
    void Cmd_Simulate_Click();

  private:
    NumberLabel* NewStock(int number, int width, const QString& hint, const QString& name);

    BuildListView* m_LV_Bauliste;
    QPushButton* m_Cmd_Undo;
    QPushButton* m_Cmd_Clear;
    QPushButton* m_Cmd_Simulate;
    TableModel* m_model;
    QGridLayout* m_stocks;
    std::vector<QLabel*> m_stockPictures;
    NumberLabel* m_LBL_Met;
    NumberLabel* m_LBL_Kris;
    NumberLabel* m_LBL_Deut;
    NumberLabel* m_LBL_ENergie;
    QLabel* m_LBL_Timegone;
};

}  // namespace tarvelin
