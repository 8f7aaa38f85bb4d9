// Sliders of the production factors.
#include "ui/mainwindow/Fra_Special.h"

#include <QGridLayout>

namespace tarvelin {

namespace {

struct Regler {
    const char* Name;
    const char* Label;
    /// In front of the percentage.
    const char* Text;
};

constexpr std::array<Regler, 3> kRegler{{
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
    auto* const gruppe =
        new GroupBox({}, QStringLiteral("Minen-Produktionsfaktor-Änderungen:"), this);
    auto* const zeilen = new QGridLayout(gruppe);
    zeilen->setContentsMargins(4, 1, 4, 1);
    zeilen->setSpacing(1);
    zeilen->setHorizontalSpacing(6);
    for (std::size_t i = 0; i < kRegler.size(); ++i) {
        const QString text = QString::fromLatin1(kRegler[i].Text);
        QSlider* const regler =
            NewSlider(QString::fromLatin1(kRegler[i].Name),
                      text.chopped(2) + QStringLiteral(" in Zehnteln"), kFullFactor, gruppe);
        QLabel* const label = NewLabel(QString::fromLatin1(kRegler[i].Label), {}, gruppe);
        const auto zeige = [label, text](int stellung) {
            label->setText(text + QString::number(10 * stellung) + QStringLiteral("%"));
        };
        connect(regler, &QSlider::valueChanged, label, zeige);
        regler->setPageStep(1);
        regler->setValue(kFullFactor);
        label->setFixedWidth(label->sizeHint().width());
        const auto zeile = static_cast<int>(i);
        zeilen->addWidget(label, zeile, 0);
        zeilen->addWidget(regler, zeile, 1);
        m_regler[i] = regler;
    }
    QPushButton* const schliesse = NewHideButton(QStringLiteral("Cmd_HideFraSpecial"));
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(4, 1, 4, 3);
    layout->setSpacing(3);
    layout->addWidget(gruppe, 0, 0, 1, 2);
    layout->addWidget(Cmd_AddProdaenderungsevent, 1, 0);
    layout->addWidget(schliesse, 1, 1);
    ChainTabOrder({m_regler[0], m_regler[1], m_regler[2], Cmd_AddProdaenderungsevent, schliesse});
    SetFirstControl(m_regler.front());
    hide();
}

MineFactors Fra_Special::Faktoren() const {
    MineFactors faktoren{};
    for (std::size_t i = 0; i < faktoren.size(); ++i) {
        faktoren[i] = static_cast<Byte>(m_regler[i]->value());
    }
    return faktoren;
}

}  // namespace tarvelin
