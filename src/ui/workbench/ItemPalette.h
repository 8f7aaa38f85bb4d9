// The page from which orders are inserted: the item pictures and the production factors.
#pragma once

#include <QComboBox>
#include <QGridLayout>
#include <QPixmap>
#include <QWidget>
#include <array>
#include <functional>
#include <optional>
#include <string>

#include "model/ItemId.h"
#include "model/Resource.h"

namespace tarvelin {

class PalettePicture;

class ItemPalette : public QWidget {
    Q_OBJECT

  public:
    explicit ItemPalette(QWidget* parent);

    void SetPictures(const PerItem<QPixmap>& pictures);
    /// `objection` tells why an item can't be inserted now. Dims the picture and explains it.
    void SetObjections(const std::function<std::optional<std::string>(ItemId)>& objection);

  signals:
    void ItemChosen(ItemId item);
    void ProductionChosen(const MineFactors& factors);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void AddPictures();
    void AddFactorInputs();
    void FitToFont();

    QGridLayout* m_layout;
    PerItem<PalettePicture*> m_pictures{};
    std::array<QComboBox*, 3> m_factors{};
};

}  // namespace tarvelin
