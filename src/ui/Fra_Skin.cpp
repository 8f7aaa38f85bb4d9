// Layout of the skin panel and the list of local skins.
#include "ui/Fra_Skin.h"

#include <QGridLayout>
#include <utility>

#include "util/Nuetzliches.h"

namespace tarvelin {

namespace {

QRadioButton* NeueOption(const char* name, const char* text, QWidget* parent) {
    auto* const option = new QRadioButton(QString::fromLatin1(text), parent);
    option->setObjectName(QString::fromLatin1(name));
    return option;
}

}  // namespace

Fra_Skin::Fra_Skin(std::filesystem::path skins, QWidget* parent)
    : Feld(QStringLiteral("Fra_Skin"), QStringLiteral("Skinpfad:"), {160, 2, 3615, 975}, parent),
      Opt_Standard(NeueOption("Opt_Standard", "Standard", this)),
      Opt_Lokal(NeueOption("Opt_Lokal", "Lokal", this)),
      Opt_Web(NeueOption("Opt_Web", "Web", this)),
      LBL_Skin(NeuesLabel(QStringLiteral("LBL_Skin"), QStringLiteral(" Standard-Skin benutzen. "),
                          this)),
      Comb_Skins(new QComboBox(this)),
      txt_Pfad(new QLineEdit(QStringLiteral("http://"), this)),
      Cmd_ApplySkin(NeuerKnopf(QStringLiteral("Cmd_ApplySkin"), QStringLiteral("OK"), this)),
      m_skins(std::move(skins)) {
    Opt_Standard->setChecked(true);
    Comb_Skins->setObjectName(QStringLiteral("Comb_Skins"));
    Comb_Skins->setAccessibleName(QStringLiteral("Lokaler Skin"));
    Comb_Skins->hide();
    txt_Pfad->setObjectName(QStringLiteral("txt_Pfad"));
    txt_Pfad->setAccessibleName(QStringLiteral("Web-Verzeichnis"));
    txt_Pfad->setEnabled(false);
    txt_Pfad->hide();

    LegeAus();
    SetzeErstes(Opt_Standard);
    hide();
}

void Fra_Skin::LegeAus() {
    // The lowest panel has room for three low lines.
    constexpr int kZeilenhoehe = 16;
    QPushButton* const schliesse = NeuerHideKnopf(QStringLiteral("Cmd_HideSchlafzeiten"));
    for (QWidget* const teil :
         std::initializer_list<QWidget*>{Opt_Standard, Opt_Lokal, Opt_Web, LBL_Skin, Comb_Skins,
                                         txt_Pfad, Cmd_ApplySkin, schliesse}) {
        teil->setFixedHeight(kZeilenhoehe);
    }
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(4, 0, 4, 0);
    layout->setSpacing(0);
    layout->setHorizontalSpacing(6);
    layout->addWidget(Opt_Standard, 0, 0);
    layout->addWidget(Opt_Lokal, 1, 0);
    layout->addWidget(Opt_Web, 2, 0);
    layout->addWidget(LBL_Skin, 0, 1, 1, 2);
    layout->addWidget(Comb_Skins, 1, 1, 1, 2);
    layout->addWidget(txt_Pfad, 1, 1, 1, 2);
    layout->addWidget(Cmd_ApplySkin, 2, 1);
    layout->addWidget(schliesse, 2, 2);
    layout->setColumnStretch(1, 1);
    layout->setColumnStretch(2, 1);
}

void Fra_Skin::FillSkinList() {
    Comb_Skins->clear();
    for (const std::string& name : GetSubfolders(m_skins)) {
        if (!name.empty() && name != "standard" && name != "temp_webskin") {
            Comb_Skins->addItem(AlsQString(name));
        }
    }
}

}  // namespace tarvelin
