// Layout of the skin panel and the list of local skins.
#include "ui/mainwindow/Fra_Skin.h"

#include <QGridLayout>
#include <utility>

#include "persistence/FileSystem.h"

namespace tarvelin {

namespace {

QRadioButton* NewOption(const char* name, const char* text, QWidget* parent) {
    auto* const option = new QRadioButton(QString::fromLatin1(text), parent);
    option->setObjectName(QString::fromLatin1(name));
    return option;
}

}  // namespace

Fra_Skin::Fra_Skin(std::filesystem::path skins, QWidget* parent)
    : Panel(QStringLiteral("Fra_Skin"), QStringLiteral("Skinpfad:"), {160, 2, 3615, 975}, parent),
      m_Comb_Skins(new QComboBox(this)),
      m_txt_Pfad(new QLineEdit(QStringLiteral("http://"), this)),
      m_Cmd_ApplySkin(NewButton(QStringLiteral("Cmd_ApplySkin"), QStringLiteral("OK"), this)),
      m_Opt_Standard(NewOption("Opt_Standard", "Standard", this)),
      m_Opt_Lokal(NewOption("Opt_Lokal", "Lokal", this)),
      m_Opt_Web(NewOption("Opt_Web", "Web", this)),
      m_LBL_Skin(
          NewLabel(QStringLiteral("LBL_Skin"), QStringLiteral(" Standard-Skin benutzen. "), this)),
      m_skins(std::move(skins)) {
    for (QRadioButton* const option : {m_Opt_Standard, m_Opt_Lokal, m_Opt_Web}) {
        connect(option, &QRadioButton::toggled, this, &Fra_Skin::ShowSource);
    }
    connect(m_Cmd_ApplySkin, &QPushButton::clicked, this, &Fra_Skin::Cmd_ApplySkin_Click);
    m_Opt_Standard->setChecked(true);
    m_Comb_Skins->setObjectName(QStringLiteral("Comb_Skins"));
    m_Comb_Skins->setAccessibleName(QStringLiteral("Lokaler Skin"));
    m_txt_Pfad->setObjectName(QStringLiteral("txt_Pfad"));
    m_txt_Pfad->setAccessibleName(QStringLiteral("Web-Verzeichnis"));

    Arrange();
    SetFirstControl(m_Opt_Standard);
    hide();
}

void Fra_Skin::Arrange() {
    // The panel is only three lines high.
    constexpr int kLineHeight = 16;
    QPushButton* const close = NewHideButton(QStringLiteral("Cmd_HideSchlafzeiten"));
    connect(close, &QPushButton::clicked, this, &QWidget::hide);
    for (QWidget* const part :
         std::initializer_list<QWidget*>{m_Opt_Standard, m_Opt_Lokal, m_Opt_Web, m_LBL_Skin,
                                         m_Comb_Skins, m_txt_Pfad, m_Cmd_ApplySkin, close}) {
        part->setFixedHeight(kLineHeight);
    }
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(4, 0, 4, 0);
    layout->setSpacing(0);
    layout->setHorizontalSpacing(6);
    layout->addWidget(m_Opt_Standard, 0, 0);
    layout->addWidget(m_Opt_Lokal, 1, 0);
    layout->addWidget(m_Opt_Web, 2, 0);
    layout->addWidget(m_LBL_Skin, 0, 1, 1, 2);
    layout->addWidget(m_Comb_Skins, 1, 1, 1, 2);
    layout->addWidget(m_txt_Pfad, 1, 1, 1, 2);
    layout->addWidget(m_Cmd_ApplySkin, 2, 1);
    layout->addWidget(close, 2, 2);
    layout->setColumnStretch(1, 1);
    layout->setColumnStretch(2, 1);
}

void Fra_Skin::ShowSource() {
    const bool local = m_Opt_Lokal->isChecked();
    const bool web = m_Opt_Web->isChecked();
    m_LBL_Skin->setText(local ? QStringLiteral(" Skin-Unterordner wählen: ")
                        : web ? QStringLiteral(" Web-Verzeichnis: ")
                              : QStringLiteral(" Standard-Skin benutzen. "));
    m_txt_Pfad->setEnabled(local || web);
    m_txt_Pfad->setVisible(web);
    m_Comb_Skins->setVisible(local);
}

void Fra_Skin::ChooseSource(Byte mode) {
    if (mode == kStandardSkin) {
        m_Opt_Standard->setChecked(true);
    } else if (mode == kLocalSkin) {
        m_Opt_Lokal->setChecked(true);
    } else if (mode == kWebSkin) {
        m_Opt_Web->setChecked(true);
    }
}

Byte Fra_Skin::ChosenSource() const {
    return m_Opt_Lokal->isChecked() ? kLocalSkin
           : m_Opt_Web->isChecked() ? kWebSkin
                                    : kStandardSkin;
}

std::string Fra_Skin::SkinFolder() const {
    return m_Comb_Skins->currentText().toStdString();
}

Configuration::Values Fra_Skin::Settings() const {
    const Byte source = ChosenSource();
    const std::string path = source == kStandardSkin ? "~"
                             : source == kWebSkin    ? kWebSkinFolder
                                                     : SkinFolder();
    return {{Configuration::kMode, std::to_string(source)},
            {Configuration::kPath, path},
            {Configuration::kWebPath, WebPath()}};
}

std::string Fra_Skin::WebPath() const {
    return m_txt_Pfad->text().toStdString();
}

void Fra_Skin::SetWebPath(const std::string& address) {
    m_txt_Pfad->setText(ToQString(address));
}

void Fra_Skin::FillSkinList() {
    m_Comb_Skins->clear();
    for (const std::string& name : GetSubfolders(m_skins)) {
        if (!name.empty() && name != "standard" && name != kWebSkinFolder) {
            m_Comb_Skins->addItem(ToQString(name));
        }
    }
}

}  // namespace tarvelin
