// The palette of the workbench: the twenty pictures, and a change of the mines' production.
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

class Palettenbild;

class Itempalette : public QWidget {
    Q_OBJECT

  public:
    explicit Itempalette(QWidget* parent);

    void SetzeBilder(const PerItem<QPixmap>& bilder);
    /// What the place where a row would go in says against each item.
    void SetzeEinwaende(const std::function<std::optional<std::string>(ItemId)>& einwand);

  signals:
    void ItemGewaehlt(ItemId item);
    void ProduktionGewaehlt(const MineFactors& faktoren);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void BaueBilder();
    void BaueProduktion();
    void PasseGroesseAn();

    QGridLayout* m_layout;
    PerItem<Palettenbild*> m_bilder{};
    std::array<QComboBox*, 3> m_faktoren{};
};

}  // namespace tarvelin
