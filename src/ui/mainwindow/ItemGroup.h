// A group of item pictures, each with its level and its name.
#pragma once

#include <vector>

#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"
#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

/// What stands for an item on the screen.
struct Itemplatz {
    ItemId Item;
    ItemPicture* Bild;
    /// The level, or the number, that the list reaches.
    QLabel* Stufe;
    /// The name under the picture, shown on demand.
    QLabel* Desc;
};

/// Pictures in columns of four, from top to bottom and then to the right.
class Itemgruppe : public GroupBox {
    Q_OBJECT

  public:
    Itemgruppe(const QString& name, const QString& titel, PictureGroup gruppe, QWidget* parent);

    [[nodiscard]] const std::vector<Itemplatz>& Plaetze() const { return m_plaetze; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    std::vector<Itemplatz> m_plaetze;
};

}  // namespace tarvelin
