// The panel "Special-Events:": rows that turn the mines up or down.
#pragma once

#include "plan/Order.h"
#include "ui/widgets/Panel.h"

namespace tarvelin {

class Fra_Special : public Panel {
    Q_OBJECT

  public:
    explicit Fra_Special(QWidget* parent);

    /// The positions of the three sliders. Only the user moves them.
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
