// Items with their numbers as a line of pictures: "3× picture  2× picture".
#pragma once

#include <QPixmap>
#include <QWidget>

#include "model/ItemId.h"

namespace tarvelin {

/// Breaks into as many lines as it needs.
class ItemCounts : public QWidget {
    Q_OBJECT

  public:
    ItemCounts(QString caption, QWidget* parent);

    void SetPictures(const PerItem<QPixmap>& pictures);
    /// Items with 0 are left out; without any it says "nichts".
    void ShowCounts(const PerItem<int>& counts);

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    /// Calls `place(text, item, rect of the picture)` for each part; returns the height.
    template <class Place>
    int Arrange(int width, Place place) const;

    QString m_caption;
    PerItem<QPixmap> m_pictures;
    PerItem<int> m_counts{};
};

}  // namespace tarvelin
