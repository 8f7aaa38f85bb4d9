// A night as a bar from evening to noon.
#pragma once

#include <QWidget>
#include <optional>

#include "plan/SleepRule.h"

namespace tarvelin {

class NightBar : public QWidget {
    Q_OBJECT

  public:
    explicit NightBar(QWidget* parent);

    /// Nothing for a night without sleep.
    void ShowNight(const std::optional<NightTimes>& night);
    /// Where an hour stands, from 18 to 12 of the next day as 36.
    [[nodiscard]] int ColumnOf(double hour) const;

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::optional<NightTimes> m_night;
};

}  // namespace tarvelin
