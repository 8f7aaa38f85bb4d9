// The page from which orders are inserted: the item pictures and the production factors.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "model/ItemId.h"
#include "model/Resource.h"
#include "simulation/InsertPreview.h"

namespace tarvelin {

class PalettePicture;

/// What an item would do at the place where the next row goes.
struct PaletteOffer {
    InsertPreview preview;
    /// Why it can't go there.
    std::optional<std::string> objection;
};

class ItemPalette : public QWidget {
    Q_OBJECT

  public:
    explicit ItemPalette(QWidget* parent);

    void SetPictures(const PerItem<QPixmap>& pictures);
    /// New rows go in front of row `before` of a list of `size` rows.
    void ShowOffers(const PerItem<PaletteOffer>& offers, std::size_t before, std::size_t size);
    /// Call it when the palette or the font has changed.
    void FollowAppearance();

  signals:
    void ItemChosen(ItemId item);
    void ProductionChosen(const MineFactors& factors);

  private:
    void AddPictures(QVBoxLayout& layout);
    void AddFactorInputs(QVBoxLayout& layout);
    void ShowDetails(std::optional<ItemId> item);

    QLabel* m_place;
    QLabel* m_placeIcon;
    QLabel* m_details;
    PerItem<PalettePicture*> m_pictures{};
    PerItem<PaletteOffer> m_offers{};
    std::optional<ItemId> m_pointedAt;
    PerResource<QComboBox*> m_factors{};
};

}  // namespace tarvelin
