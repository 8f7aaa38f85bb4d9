// The panel "Skinpfad:": where the pictures come from.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <filesystem>

#include "ui/widgets/Panel.h"
#include "util/Integers.h"

namespace tarvelin {

/// Where a skin comes from, as the configuration keeps it.
inline constexpr Byte kStandardSkin = 1;
inline constexpr Byte kLocalSkin = 2;
inline constexpr Byte kWebSkin = 3;

/// The folder in which a web skin lands.
inline constexpr const char* kWebSkinFolder = "temp_webskin";

class Fra_Skin : public Panel {
    Q_OBJECT

  public:
    /// `skins` is the folder in which each skin has one of its own.
    Fra_Skin(std::filesystem::path skins, QWidget* parent);

    /// Offers the local skins anew, as they lie on disk, and selects the first.
    void FillSkinList();

    /// Selects the source of this kind; any other value leaves the selection.
    void ChooseSource(Byte mode);
    [[nodiscard]] Byte ChosenSource() const;

    QComboBox* const Comb_Skins;
    QLineEdit* const txt_Pfad;
    QPushButton* const Cmd_ApplySkin;

  private:
    void ShowSource();
    void Arrange();

    QRadioButton* m_Opt_Standard;
    QRadioButton* m_Opt_Lokal;
    QRadioButton* m_Opt_Web;
    QLabel* m_LBL_Skin;
    std::filesystem::path m_skins;
};

}  // namespace tarvelin
