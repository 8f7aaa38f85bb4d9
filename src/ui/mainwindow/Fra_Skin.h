// The panel "Skinpfad:": the source of the pictures.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <filesystem>
#include <string>

#include "persistence/Configuration.h"
#include "ui/widgets/Panel.h"

namespace tarvelin {

/// Sources of a skin; the configuration stores these numbers.
inline constexpr Byte kStandardSkin = 1;
inline constexpr Byte kLocalSkin = 2;
inline constexpr Byte kWebSkin = 3;

/// The folder of a fetched web skin.
inline constexpr const char* kWebSkinFolder = "temp_webskin";

class Fra_Skin : public Panel {
    Q_OBJECT

  public:
    /// `skins` is the folder that holds the folders of the skins.
    Fra_Skin(std::filesystem::path skins, QWidget* parent);

    /// Reads the local skins from disk again and selects the first.
    void FillSkinList();

    /// An unknown source is ignored.
    void ChooseSource(Byte mode);
    [[nodiscard]] Byte ChosenSource() const;

    /// The folder chosen from the list; empty if there is none.
    [[nodiscard]] std::string SkinFolder() const;
    /// The choice, as the configuration keeps it.
    [[nodiscard]] Configuration::Values Settings() const;
    /// The address of a web skin.
    [[nodiscard]] std::string WebPath() const;
    void SetWebPath(const std::string& address);

  signals:
    void Cmd_ApplySkin_Click();

  private:
    void ShowSource();
    void Arrange();

    QComboBox* m_Comb_Skins;
    QLineEdit* m_txt_Pfad;
    QPushButton* m_Cmd_ApplySkin;
    QRadioButton* m_Opt_Standard;
    QRadioButton* m_Opt_Lokal;
    QRadioButton* m_Opt_Web;
    QLabel* m_LBL_Skin;
    std::filesystem::path m_skins;
};

}  // namespace tarvelin
