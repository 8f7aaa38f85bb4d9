// A group of item pictures, each with its level and its name.
#pragma once

#include <vector>

#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"
#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

/// What stands for an item on the screen.
struct ItemTile {
    ItemId item;
    ItemPicture* picture;
    /// The level, or the number, that the list reaches.
    QLabel* level;
    /// The name under the picture, shown on demand.
    QLabel* desc;
};

/// Pictures in columns of four, from top to bottom and then to the right.
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
