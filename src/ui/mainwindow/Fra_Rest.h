// The working surface: the plan, the item pictures and the result, in six groups.
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
    /// Shows `liste` and `lauf`, which must outlive the surface.
    Fra_Rest(const BuildList& liste, const LastRun& lauf, QWidget* parent);

    /// The rows of the list and the levels over the pictures.
    void ZeigeListe();
    void MacheLetzteSichtbar() { m_Frame8->MacheLetzteSichtbar(); }
    void ZeigeBauzeiten() { m_Frame6->ZeigeBauzeiten(); }
    void MacheErsteBauzeitSichtbar() { m_Frame6->LV_Bauzeiten->scrollToTop(); }
    void Zeige(const ResultTexts& texte);
    /// The names under the pictures.
    void ZeigeNamen(bool zeigen);

    /// What the pictures show.
    [[nodiscard]] PerItem<QPixmap> Itembilder() const;

    void SetzeZeiger(const DragCursors& zeiger);
    void SetzeSpendenbild(const QPixmap& bild) { m_Frame6->ImgDonate_1->SetPicture(bild); }

    /// What Enter presses.
    [[nodiscard]] QPushButton* Startknopf() const { return m_Frame8->Cmd_Simulate; }
    /// The switch of the alarm before each start, and its seconds of warning.
    [[nodiscard]] QCheckBox* Bauwecker() const { return m_Frame6->Chk_BauWeckfunktion; }
    [[nodiscard]] const QComboBox* SekundenVorher() const { return m_Frame6->Comb_Before; }

  signals:
    void Img_MouseMove(const Itemplatz& platz);
    /// An item picture was dropped on the list, told by its name.
    void DragDrop(const QString& Source);
    void Cmd_Undo_Click();
    void Cmd_Clear_Click();
    void Cmd_Simulate_Click();
    void ImgDonate_Click();

  private:
    std::vector<Itemplatz> BaueItemgruppen();

    const BuildList& m_liste;
    Baulistengruppe* m_Frame8;
    Bauzeitengruppe* m_Frame6;
    std::vector<Itemplatz> m_plaetze;
};

}  // namespace tarvelin
