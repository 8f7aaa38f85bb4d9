// A picture of the palette: pressed or dragged into the list.
#pragma once

#include "ui/widgets/PictureButton.h"

namespace tarvelin {

class Palettenbild : public Bildknopf {
    Q_OBJECT

  public:
    using Bildknopf::Bildknopf;

  protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    QPoint m_gedrueckt;
};

}  // namespace tarvelin
