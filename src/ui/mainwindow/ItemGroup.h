// A group of item pictures, each with its level and its name.
#pragma once

#include <vector>

#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"
#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

struct ItemTile {
    ItemId item;
    ItemPicture* picture;
    /// The level or number of units at the end of the list.
    QLabel* level;
    /// The name; can be hidden.
    QLabel* desc;
};

/// Columns of four, filled from top to bottom.
class ItemGroup : public GroupBox {
    Q_OBJECT

  public:
    ItemGroup(const QString& name, const QString& title, PictureGroup group, QWidget* parent);

    [[nodiscard]] const std::vector<ItemTile>& Tiles() const { return m_tiles; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    std::vector<ItemTile> m_tiles;
};

}  // namespace tarvelin
