// An opening as a card: what it is good for, its figures, its run at a glance, a button.
#pragma once

#include <QPixmap>
#include <QWidget>

#include "simulation/RunTrace.h"
#include "ui/workbench/Openings.h"

namespace tarvelin {

class OpeningCard : public QWidget {
    Q_OBJECT

  public:
    /// `trace` is the run of the opening's plan. Miniatures show `seconds` from the start on.
    OpeningCard(const Opening& opening, const RunTrace& trace, Long seconds, QWidget* parent);

    void SetPictures(const PerItem<QPixmap>& pictures);

  signals:
    void Chosen();

  protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    class Highlights;
    class OpenButton;

    void Arrange(const Opening& opening, const RunTrace& trace, Long seconds);
    void ShowMark();

    Highlights* m_highlights;
    OpenButton* m_button;
    /// Pointed at, or with the focus.
    bool m_marked = false;
};

}  // namespace tarvelin
