// The working surface: build list, item pictures and results in six groups.
#pragma once

#include <QWidget>
#include <vector>

#include "plan/Plan.h"
#include "simulation/RunSimulation.h"
#include "ui/mainwindow/BuildListGroup.h"
#include "ui/mainwindow/ItemGroup.h"
#include "ui/mainwindow/ScheduleGroup.h"

namespace tarvelin {

class Fra_Rest : public QWidget {
    Q_OBJECT

  public:
    /// Shows `list` and `run`, which must outlive the surface.
    Fra_Rest(const BuildList& list, const LastRun& run, QWidget* parent);

    /// Call it after a change of the list. Refreshes the rows, and the levels over the pictures.
    void ShowList();
    void ScrollToLast() { m_Frame8->ScrollToLast(); }
    void ShowSchedule() { m_Frame6->ShowSchedule(); }
    void ScrollScheduleToTop() { m_Frame6->LV_Bauzeiten->scrollToTop(); }
    void ShowResult(const ResultTexts& texts);
    void ShowNames(bool show);

    [[nodiscard]] PerItem<QPixmap> ItemPictures() const;

    void SetCursors(const DragCursors& cursors);
    void SetDonationPicture(const QPixmap& picture) { m_Frame6->ImgDonate_1->SetPicture(picture); }

    /// The default button.
    [[nodiscard]] QPushButton* StartButton() const { return m_Frame8->Cmd_Simulate; }
    /// The switch of the alarm before each start, and how many seconds before.
    [[nodiscard]] QCheckBox* BuildAlarmSwitch() const { return m_Frame6->Chk_BauWeckfunktion; }
    [[nodiscard]] const QComboBox* SecondsBefore() const { return m_Frame6->Comb_Before; }

  signals:
    void Img_MouseMove(const ItemTile& tile);
    /// `Source` is the object name of an item picture that was dropped on the list, or chosen by
    /// the space bar.
    void DragDrop(const QString& Source);
    void Cmd_Undo_Click();
    void Cmd_Clear_Click();
    void Cmd_Simulate_Click();
    void ImgDonate_Click();

  private:
    std::vector<ItemTile> AddItemGroups();
    void RefreshStufenLabels();

    const BuildList& m_list;
    BuildListGroup* m_Frame8;
    ScheduleGroup* m_Frame6;
    std::vector<ItemTile> m_tiles;
};

}  // namespace tarvelin
