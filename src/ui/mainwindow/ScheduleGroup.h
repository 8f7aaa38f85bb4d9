// The group "Optimale Bauzeiten:": what the last run came to, and the alarm before each start.
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

class Bauzeitengruppe : public GroupBox {
    Q_OBJECT

  public:
    /// Shows the rows of `bauzeiten`, which must outlive the group.
    Bauzeitengruppe(const Schedule& bauzeiten, QWidget* parent);

    /// After a run or a reset.
    void ZeigeBauzeiten() { m_modell->Refresh(); }
    void Zeige(const ResultTexts& texte);

    ListView* const LV_Bauzeiten;
    QCheckBox* const Chk_BauWeckfunktion;
    /// Seconds of warning; can be typed into.
    QComboBox* const Comb_Before;
    PictureButton* const ImgDonate_1;

  private:
    void FuelleSekunden();
    void LegeAus();
    void LV_Bauzeiten_MouseMove(const QModelIndex& zeile);

    const Schedule& m_bauzeiten;
    TableModel* m_modell;
    QLabel* m_LBL_Punkte;
    QLabel* m_LBL_Timegone2;
};

}  // namespace tarvelin
