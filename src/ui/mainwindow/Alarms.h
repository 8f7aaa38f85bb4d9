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

/// Each alarm runs as long as its box is checked, and compares what stands in its table at a tick.
class Alarme : public QObject {
    Q_OBJECT

  public:
    struct Quellen {
        const Schedule& LV_Bauzeiten;
        const SleepTable& LV_Schlafzeiten;
        QCheckBox& Chk_BauWeckfunktion;
        QCheckBox& Chk_Schlafzeitenwecker;
        const QComboBox& Comb_Before;
    };

    /// What it is given must outlive it.
    Alarme(const Quellen& quellen, const Environment& umgebung, QObject* parent);

    /// Sets the boxes as the configuration has them.
    void LiesKonfiguration();
    /// No tick comes any more.
    void Verstumme();

  private:
    void Tmr_BauWeckfunktion_Tick();
    void Tmr_Schlafweckfunktion_Tick();
    void PlayAlert(std::size_t mal);

    Quellen m_quellen;
    const Environment& m_umgebung;
    Configuration m_konfiguration;
    SecondTimer m_Tmr_BauWeckfunktion;
    SecondTimer m_Tmr_Schlafweckfunktion;
};

}  // namespace tarvelin
