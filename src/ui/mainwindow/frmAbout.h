// The about box: a small window of its own beside the main window.
#pragma once

#include <QWidget>

#include "ui/services/Environment.h"

namespace tarvelin {

class frmAbout : public QWidget {
    Q_OBJECT

  public:
    /// `environment` must outlive the box.
    explicit frmAbout(const Environment& environment);

  protected:
    /// Enter and Escape press the button.
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tarvelin
