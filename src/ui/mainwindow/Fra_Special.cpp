// Sliders of the production factors.
#include "ui/mainwindow/Fra_Special.h"

#include <QGridLayout>

namespace tarvelin {

namespace {

struct FactorSlider {
    const char* name;
    const char* label;
    /// In front of the percentage.
    const char* text;
};

constexpr std::array<FactorSlider, 3> kSliders{{
    {"HSC_MetFaktor", "LBL_MetFaktor", "Metallmine: "},
    {"HSC_Krisfaktor", "LBL_Krisfaktor", "Kristallmine: "},
    {"HSC_Deutfaktor", "LBL_Deutfaktor", "Deutmine: "},
}};

}  // namespace

Fra_Special::Fra_Special(QWidget* parent)
    : Panel(QStringLiteral("Fra_Special"), QStringLiteral("Special-Events:"), {160, 2, 3255, 1635},
            parent),
      Cmd_AddProdaenderungsevent(NewButton(QStringLiteral("Cmd_AddProdaenderungsevent"),
                                           QStringLiteral("Add Event"), this)) {
    auto* const group =
        new GroupBox({}, QStringLiteral("Minen-Produktionsfaktor-Änderungen:"), this);
    auto* const rows = new QGridLayout(group);
    rows->setContentsMargins(4, 1, 4, 1);
    rows->setSpacing(1);
    rows->setHorizontalSpacing(6);
    for (std::size_t i = 0; i < kSliders.size(); ++i) {
        const QString text = QString::fromLatin1(kSliders[i].text);
        QSlider* const slider =
            NewSlider(QString::fromLatin1(kSliders[i].name),
                      text.chopped(2) + QStringLiteral(" in Zehnteln"), kFullFactor, group);
        QLabel* const label = NewLabel(QString::fromLatin1(kSliders[i].label), {}, group);
        const auto show = [label, text](int position) {
            label->setText(text + QString::number(10 * position) + QStringLiteral("%"));
        };
        connect(slider, &QSlider::valueChanged, label, show);
        slider->setPageStep(1);
        slider->setValue(kFullFactor);
        label->setFixedWidth(label->sizeHint().width());
        const auto row = static_cast<int>(i);
        rows->addWidget(label, row, 0);
        rows->addWidget(slider, row, 1);
        m_slider[i] = slider;
    }
    QPushButton* const close = NewHideButton(QStringLiteral("Cmd_HideFraSpecial"));
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(4, 1, 4, 3);
    layout->setSpacing(3);
    layout->addWidget(group, 0, 0, 1, 2);
    layout->addWidget(Cmd_AddProdaenderungsevent, 1, 0);
    layout->addWidget(close, 1, 1);
    ChainTabOrder({m_slider[0], m_slider[1], m_slider[2], Cmd_AddProdaenderungsevent, close});
    SetFirstControl(m_slider.front());
    hide();
}

MineFactors Fra_Special::Factors() const {
    MineFactors factors{};
    for (std::size_t i = 0; i < factors.size(); ++i) {
        factors[i] = static_cast<Byte>(m_slider[i]->value());
    }
    return factors;
}

}  // namespace tarvelin
