// The group "Optimale Bauzeiten:": schedule and points of the last run, and its alarm.
#pragma once

#include <QCheckBox>
#include <QComboBox>

#include "document/DocumentChange.h"
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

    void ShowSchedule(DocumentChange::Results change);
    void ShowResult(const ResultTexts& texts);

    /// The switch of the alarm before each start, and how many seconds before it sounds.
    [[nodiscard]] QCheckBox* AlarmSwitch() const { return m_Chk_BauWeckfunktion; }
    [[nodiscard]] const QComboBox* SecondsBefore() const { return m_Comb_Before; }
    /// The list, from which Tab goes on through the group.
    [[nodiscard]] std::vector<QWidget*> TabOrder() const {
        return {m_LV_Bauzeiten, m_Chk_BauWeckfunktion, m_Comb_Before};
    }
    [[nodiscard]] PictureButton* DonationButton() const { return m_ImgDonate_1; }
    /// The symbol of the points.
    [[nodiscard]] QLabel* PointsPicture() const { return m_pointsPicture; }

  private:
    void FillSeconds();
    void Arrange();
    void LV_Bauzeiten_MouseMove(const QModelIndex& row);

    const Schedule& m_schedule;
    ListView* m_LV_Bauzeiten;
    QCheckBox* m_Chk_BauWeckfunktion;
    QComboBox* m_Comb_Before;
    PictureButton* m_ImgDonate_1;
    TableModel* m_model;
    QLabel* m_pointsPicture;
    QLabel* m_LBL_Punkte;
    QLabel* m_LBL_Timegone2;
};

}  // namespace tarvelin
