// The about box, a window of its own.
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
    /// Enter and Escape close the box.
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tarvelin
