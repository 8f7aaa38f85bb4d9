// The group "Optimale Bauzeiten:": schedule and points of the last run, and its alarm.
#pragma once

#include <QCheckBox>
#include <QComboBox>

#include "simulation/ResultTexts.h"
#include "simulation/Schedule.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ListView.h"
#include "ui/widgets/PictureButton.h"
#include "ui/widgets/TableModel.h"

namespace tarvelin {

class ScheduleGroup : public GroupBox {
    Q_OBJECT

  public:
    /// Shows the rows of `schedule`, which must outlive the group.
    ScheduleGroup(const Schedule& schedule, QWidget* parent);

    /// Call it after a run or a reset.
    void ShowSchedule() { m_model->Refresh(); }
    void ShowResult(const ResultTexts& texts);

    ListView* const LV_Bauzeiten;
    QCheckBox* const Chk_BauWeckfunktion;
    /// How many seconds before a start the alarm sounds. Editable.
    QComboBox* const Comb_Before;
    PictureButton* const ImgDonate_1;

  private:
    void FillSeconds();
    void Arrange();
    void LV_Bauzeiten_MouseMove(const QModelIndex& row);

    const Schedule& m_schedule;
    TableModel* m_model;
    QLabel* m_LBL_Punkte;
    QLabel* m_LBL_Timegone2;
};

}  // namespace tarvelin
