// The donation dialog: six buttons that lead to the page of the payment service.
#pragma once

#include <QWidget>

#include "ui/services/Environment.h"

namespace tarvelin {

class frmDonate : public QWidget {
    Q_OBJECT

  public:
    /// `environment` must outlive the dialog.
    explicit frmDonate(const Environment& environment);
};

}  // namespace tarvelin
