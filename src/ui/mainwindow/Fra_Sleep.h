// The panel "Schlaf/Pausen-zeiten:": the times when the player gives no orders.
#pragma once

#include <QCalendarWidget>
#include <QCheckBox>

#include "document/Document.h"
#include "ui/services/Environment.h"
#include "ui/widgets/ListView.h"
#include "ui/widgets/Panel.h"
#include "ui/widgets/TableModel.h"

namespace tarvelin {

class Fra_Sleep : public Panel {
    Q_OBJECT

  public:
    /// Both must outlive the panel.
    Fra_Sleep(Document& document, const Environment& environment, QWidget* parent);

    /// Call it after a change of the table. Deselects all rows.
    void Refresh();
    void RefreshSchlafEnde();

    /// The switch of the alarm before the end of each window.
    [[nodiscard]] QCheckBox* AlarmSwitch() const { return m_Chk_Schlafzeitenwecker; }

  private:
    void AddInputs();
    void Arrange();
    QLayout* NewTimes(QPushButton* add);
    QPushButton* NewTableButton(const char* name, const char* text, void (Fra_Sleep::*handler)());
    void TurnPage(int year, int month);
    [[nodiscard]] const SleepTable& Table() const {
        return m_document.CurrentPlan().LV_Schlafzeiten;
    }
    [[nodiscard]] SleepInput ReadInput() const;
    void Cmd_AddSchlafzeit_Click();
    void Cmd_RemoveSchlafzeit_Click();
    void Cmd_ClearSchlafzeiten_Click();
    void Cmd_HideSleep_Click();

    Document& m_document;
    const Environment& m_environment;
    ListView* m_LV_Schlafzeiten;
    QCheckBox* m_Chk_Schlafzeitenwecker;
    TableModel* m_model;
    QCalendarWidget* m_SchlafKalender;
    /// Hours and minutes of the start, then of the duration.
    std::vector<TextInput*> m_times;
    QLabel* m_LBL_Schlafendzeit;
};

}  // namespace tarvelin
