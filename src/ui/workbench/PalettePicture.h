// A picture of the palette, which can be clicked or dragged to the list.
#pragma once

#include "ui/widgets/PictureButton.h"

namespace tarvelin {

class PalettePicture : public PictureButton {
    Q_OBJECT

  public:
    using PictureButton::PictureButton;

  protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    QPoint m_pressed;
};

}  // namespace tarvelin
