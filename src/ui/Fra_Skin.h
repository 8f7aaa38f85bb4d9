// The panel "Skinpfad:": where the pictures come from.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <filesystem>

#include "ui/Feld.h"

namespace tarvelin {

class Fra_Skin : public Feld {
    Q_OBJECT

  public:
    /// `skins` is the folder in which each skin has one of its own.
    Fra_Skin(std::filesystem::path skins, QWidget* parent);

    /// Offers the local skins anew, as they lie on disk, and selects the first.
    void FillSkinList();

    QRadioButton* const Opt_Standard;
    QRadioButton* const Opt_Lokal;
    QRadioButton* const Opt_Web;
    QLabel* const LBL_Skin;
    QComboBox* const Comb_Skins;
    QLineEdit* const txt_Pfad;
    QPushButton* const Cmd_ApplySkin;

  private:
    void LegeAus();

    std::filesystem::path m_skins;
};

}  // namespace tarvelin
