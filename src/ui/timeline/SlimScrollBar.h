// A scroll bar without arrows, 8 pixels high.
#pragma once

#include <QScrollBar>

namespace tarvelin {

class SlimScrollBar : public QScrollBar {
    Q_OBJECT

  public:
    /// Horizontal.
    explicit SlimScrollBar(QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace tarvelin
