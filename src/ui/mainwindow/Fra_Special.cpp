// Layout of the panel and its handlers.
#include "ui/mainwindow/Fra_Special.h"

#include <QGridLayout>

namespace tarvelin {

namespace {

struct FactorSlider {
    const char* name;
    const char* label;
    const char* mine;
};

constexpr PerResource<FactorSlider> kSliders{{{
    {"HSC_MetFaktor", "LBL_MetFaktor", "Metallmine"},
    {"HSC_Krisfaktor", "LBL_Krisfaktor", "Kristallmine"},
    {"HSC_Deutfaktor", "LBL_Deutfaktor", "Deutmine"},
}}};

}  // namespace

Fra_Special::Fra_Special(Document& document, Prompts& prompts, QWidget* parent)
    : Panel(QStringLiteral("Fra_Special"), QStringLiteral("Special-Events:"), {160, 2, 3255, 1635},
            parent),
      m_document(document),
      m_prompts(prompts) {
    QWidget* const sliders = NewFactorSliders();
    QPushButton* const add =
        NewButton(QStringLiteral("Cmd_AddProdaenderungsevent"), QStringLiteral("Add Event"), this);
    connect(add, &QPushButton::clicked, this, &Fra_Special::Cmd_AddProdaenderungsevent_Click);
    QPushButton* const close = NewHideButton(QStringLiteral("Cmd_HideFraSpecial"));
    connect(close, &QPushButton::clicked, this, &Fra_Special::Cmd_HideFraSpecial_Click);
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(4, 1, 4, 3);
    layout->setSpacing(3);
    layout->addWidget(sliders, 0, 0, 1, 2);
    layout->addWidget(add, 1, 0);
    layout->addWidget(close, 1, 1);
    ChainTabOrder({m_sliders[Resource::Metall], m_sliders[Resource::Kristall],
                   m_sliders[Resource::Deuterium], add, close});
    SetFirstControl(m_sliders[Resource::Metall]);
    hide();
}

QWidget* Fra_Special::NewFactorSliders() {
    auto* const group =
        new GroupBox({}, QStringLiteral("Minen-Produktionsfaktor-Änderungen:"), this);
    auto* const rows = new QGridLayout(group);
    rows->setContentsMargins(4, 1, 4, 1);
    rows->setSpacing(1);
    rows->setHorizontalSpacing(6);
    for (const auto& [mine, handler] :
         {std::pair(Resource::Metall, &Fra_Special::HSC_MetFaktor_Change),
          std::pair(Resource::Kristall, &Fra_Special::HSC_Krisfaktor_Change),
          std::pair(Resource::Deuterium, &Fra_Special::HSC_Deutfaktor_Change)}) {
        const FactorSlider& texts = kSliders[mine];
        QSlider* const slider = NewSlider(
            QString::fromLatin1(texts.name),
            QString::fromLatin1(texts.mine) + QStringLiteral(" in Zehnteln"), kFullFactor, group);
        QLabel* const label = NewLabel(QString::fromLatin1(texts.label), {}, group);
        m_sliders[mine] = slider;
        m_labels[mine] = label;
        connect(slider, &QSlider::valueChanged, this, handler);
        slider->setPageStep(1);
        slider->setValue(kFullFactor);
        // 100% is the widest text.
        label->setFixedWidth(label->sizeHint().width());
        const auto row = static_cast<int>(IndexOf(mine));
        rows->addWidget(label, row, 0);
        rows->addWidget(slider, row, 1);
    }
    return group;
}

MineFactors Fra_Special::Factors() const {
    MineFactors factors{};
    for (const Resource mine : kResources) {
        factors[mine] = static_cast<Byte>(m_sliders[mine]->value());
    }
    return factors;
}

void Fra_Special::HSC_MetFaktor_Change(int position) {
    ShowFactor(Resource::Metall, position);
}

void Fra_Special::HSC_Krisfaktor_Change(int position) {
    ShowFactor(Resource::Kristall, position);
}

void Fra_Special::HSC_Deutfaktor_Change(int position) {
    ShowFactor(Resource::Deuterium, position);
}

void Fra_Special::ShowFactor(Resource mine, int position) {
    m_labels[mine]->setText(
        QStringLiteral("%1: %2%").arg(QString::fromLatin1(kSliders[mine].mine)).arg(10 * position));
}

void Fra_Special::Cmd_AddProdaenderungsevent_Click() {
    if (const auto message = m_document.AddProduction(Factors())) {
        m_prompts.Show(*message);
    }
}

void Fra_Special::Cmd_HideFraSpecial_Click() {
    hide();
}

}  // namespace tarvelin
