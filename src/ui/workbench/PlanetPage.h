// The page with the parameters of the plan: planet, start, click buffer, speed.
#pragma once

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QWidget>

#include "document/Document.h"

namespace tarvelin {

/// Sets what the panel `Fra_Einstellungen` of the classic window sets, in step with it.
class PlanetPage : public QWidget {
    Q_OBJECT

  public:
    /// `document` must outlive the page.
    PlanetPage(Document& document, QWidget* parent);

    /// Call it after a change of the parameters.
    void Refresh();

  private:
    void Arrange();
    void ConnectSignals();
    [[nodiscard]] const StartParameters& Parameters() const {
        return m_document.CurrentPlan().parameters;
    }
    template <class Change>
    void Edit(const QWidget& control, Change change);

    Document& m_document;
    QDateTimeEdit* m_start;
    QLabel* m_startHint;
    QLineEdit* m_tempMin;
    QLineEdit* m_tempMax;
    QSpinBox* m_klickPuffer;
    QCheckBox* m_speed;
};

}  // namespace tarvelin
