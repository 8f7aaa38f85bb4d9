// The working surface: build list, item pictures and results in six groups.
#pragma once

#include <QWidget>
#include <string_view>
#include <vector>

#include "document/Document.h"
#include "ui/mainwindow/BuildListGroup.h"
#include "ui/mainwindow/ItemGroup.h"
#include "ui/mainwindow/ScheduleGroup.h"

namespace tarvelin {

class Fra_Rest : public QWidget {
    Q_OBJECT

  public:
    /// `document` must outlive the surface.
    Fra_Rest(const Document& document, QWidget* parent);

    void ShowChange(const DocumentChange& change);

    [[nodiscard]] PerItem<QPixmap> ItemPictures() const;
    /// The label with this object name: the picture of an item, or "Images(0)" to "Images(4)" for
    /// the stocks, energy and points.
    [[nodiscard]] QLabel* Picture(std::string_view name) const;

    void SetCursors(const DragCursors& cursors);
    void SetDonationPicture(const QPixmap& picture);

    /// The default button.
    [[nodiscard]] QPushButton* StartButton() const { return m_Frame8->StartButton(); }
    /// The switch of the alarm before each start, and how many seconds before.
    [[nodiscard]] QCheckBox* BuildAlarmSwitch() const { return m_Frame6->AlarmSwitch(); }
    [[nodiscard]] const QComboBox* SecondsBefore() const { return m_Frame6->SecondsBefore(); }

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
    void ShowNames();

    const Document& m_document;
    BuildListGroup* m_Frame8;
    ScheduleGroup* m_Frame6;
    std::vector<ItemTile> m_tiles;
    /// All that a skin may change.
    std::vector<QLabel*> m_pictures;
};

}  // namespace tarvelin
