// The group "Bauliste:": the plan, the buttons below it and the stocks at its end.
#pragma once

#include <QGridLayout>

#include "plan/BuildList.h"
#include "simulation/ResultTexts.h"
#include "ui/mainwindow/BuildListView.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/TableModel.h"

namespace tarvelin {

class Baulistengruppe : public GroupBox {
    Q_OBJECT

  public:
    /// Shows the rows of `liste`, which must outlive the group.
    Baulistengruppe(const BuildList& liste, QWidget* parent);

    /// After a change of the list.
    void ZeigeListe() { m_modell->Refresh(); }
    void MacheLetzteSichtbar() { LV_Bauliste->scrollToBottom(); }
    void Zeige(const ResultTexts& texte);

    Baulistenansicht* const LV_Bauliste;
    QPushButton* const Cmd_Undo;
    QPushButton* const Cmd_Clear;
    QPushButton* const Cmd_Simulate;

  private:
    NumberLabel* NeuerVorrat(int nummer, int breite, const QString& hinweis, const QString& name);

    TableModel* m_modell;
    QGridLayout* m_vorraete;
    NumberLabel* m_LBL_Met;
    NumberLabel* m_LBL_Kris;
    NumberLabel* m_LBL_Deut;
    NumberLabel* m_LBL_ENergie;
    QLabel* m_LBL_Timegone;
};

}  // namespace tarvelin
