// A frame in the accent's color around the control that has the focus.
#pragma once

#include <QFocusFrame>

namespace tarvelin {

/// Follows the focus within a window.
class FocusFrame : public QFocusFrame {
    Q_OBJECT

  public:
    explicit FocusFrame(QWidget* window);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void Follow(QWidget* focused);
};

}  // namespace tarvelin
