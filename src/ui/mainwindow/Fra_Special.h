// The panel "Special-Events:": rows that turn the mines up or down.
#pragma once

#include <array>

#include "plan/Order.h"
#include "ui/widgets/Panel.h"

namespace tarvelin {

class Fra_Special : public Panel {
    Q_OBJECT

  public:
    explicit Fra_Special(QWidget* parent);

    /// The positions of the three sliders. Only the user moves them.
    [[nodiscard]] MineFactors Factors() const;

    QPushButton* const Cmd_AddProdaenderungsevent;

  private:
    /// Metal, crystal, deuterium.
    std::array<QSlider*, 3> m_slider{};
};

}  // namespace tarvelin
