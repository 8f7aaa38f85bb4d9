// The panel "Special-Events:": factors for rows that change the production of the mines.
#pragma once

#include "document/Document.h"
#include "ui/widgets/Panel.h"

namespace tarvelin {

class Fra_Special : public Panel {
    Q_OBJECT

  public:
    /// Both must outlive the panel.
    Fra_Special(Document& document, Prompts& prompts, QWidget* parent);

  private:
    QWidget* NewFactorSliders();
    void HSC_MetFaktor_Change(int position);
    void HSC_Krisfaktor_Change(int position);
    void HSC_Deutfaktor_Change(int position);
    void Cmd_AddProdaenderungsevent_Click();
    void Cmd_HideFraSpecial_Click();
    /// `position` in tenths.
    void ShowFactor(Resource mine, int position);

    /// The positions of the sliders, in tenths.
    [[nodiscard]] MineFactors Factors() const;

    Document& m_document;
    Prompts& m_prompts;
    PerResource<QSlider*> m_sliders{};
    PerResource<QLabel*> m_labels{};
};

}  // namespace tarvelin
