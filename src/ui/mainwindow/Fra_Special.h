// The panel "Special-Events:": factors for rows that change the production of the mines.
#pragma once

#include "plan/Order.h"
#include "ui/widgets/Panel.h"

namespace tarvelin {

class Fra_Special : public Panel {
    Q_OBJECT

  public:
    explicit Fra_Special(QWidget* parent);

    /// The positions of the sliders, in tenths.
    [[nodiscard]] MineFactors Factors() const;

    QPushButton* const Cmd_AddProdaenderungsevent;

  private:
    QWidget* NewFactorSliders();
    void HSC_MetFaktor_Change(int position);
    void HSC_Krisfaktor_Change(int position);
    void HSC_Deutfaktor_Change(int position);
    void Cmd_HideFraSpecial_Click();
    /// `position` in tenths.
    void ShowFactor(Resource mine, int position);

    PerResource<QSlider*> m_sliders{};
    PerResource<QLabel*> m_labels{};
};

}  // namespace tarvelin
