// The panel "Schlaf/Pausen-zeiten:": the times when the player gives no orders.
#pragma once

#include <QCalendarWidget>
#include <QCheckBox>

#include "plan/SleepTable.h"
#include "ui/services/Environment.h"
#include "ui/widgets/ListView.h"
#include "ui/widgets/Panel.h"
#include "ui/widgets/TableModel.h"

namespace tarvelin {

class Fra_Sleep : public Panel {
    Q_OBJECT

  public:
    /// Edits `table`, which must outlive the panel, as must `environment`.
    Fra_Sleep(SleepTable& table, const Environment& environment, QWidget* parent);

    /// Call it after the program has changed the table. Deselects all rows.
    void Refresh();
    void RefreshSchlafEnde();

    ListView* const LV_Schlafzeiten;
    QCheckBox* const Chk_Schlafzeitenwecker;

  signals:
    /// The user has changed the table.
    void Edited();

  private:
    void AddInputs();
    void Arrange();
    QLayout* NewTimes(QPushButton* add);
    QPushButton* NewTableButton(const char* name, const char* text, void (Fra_Sleep::*handler)());
    void TurnPage(int year, int month);
    [[nodiscard]] SleepInput ReadInput() const;
    void Cmd_AddSchlafzeit_Click();
    void Cmd_RemoveSchlafzeit_Click();
    void Cmd_ClearSchlafzeiten_Click();
    void Cmd_HideSleep_Click();

    SleepTable& m_table;
    const Environment& m_environment;
    TableModel* m_model;
    QCalendarWidget* m_SchlafKalender;
    /// Hours and minutes of the start, then of the duration.
    std::vector<TextInput*> m_times;
    QLabel* m_LBL_Schlafendzeit;
};

}  // namespace tarvelin
