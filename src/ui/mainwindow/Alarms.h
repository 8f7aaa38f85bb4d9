// The two alarms: a sound before each build start, and one before the end of each sleep window.
#pragma once

#include <QCheckBox>
#include <QComboBox>

#include "persistence/Configuration.h"
#include "plan/SleepTable.h"
#include "simulation/Schedule.h"
#include "ui/services/Environment.h"
#include "ui/services/SecondTimer.h"

namespace tarvelin {

/// An alarm runs while its check box is set. It reads its table at each tick.
class Alarms : public QObject {
    Q_OBJECT

  public:
    struct Inputs {
        const Schedule& LV_Bauzeiten;
        const SleepTable& LV_Schlafzeiten;
        QCheckBox& Chk_BauWeckfunktion;
        QCheckBox& Chk_Schlafzeitenwecker;
        const QComboBox& Comb_Before;
    };

    /// All arguments must outlive it.
    Alarms(const Inputs& inputs, const Environment& environment, QObject* parent);

    /// Sets the check boxes from the configuration.
    void ReadConfiguration();
    void Silence();

  private:
    void Tmr_BauWeckfunktion_Tick();
    void Tmr_Schlafweckfunktion_Tick();
    void PlayAlert(std::size_t times);

    Inputs m_inputs;
    const Environment& m_environment;
    Configuration m_configuration;
    SecondTimer m_Tmr_BauWeckfunktion;
    SecondTimer m_Tmr_Schlafweckfunktion;
};

}  // namespace tarvelin
