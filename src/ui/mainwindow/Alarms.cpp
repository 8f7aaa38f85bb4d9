// Timers and sounds of the alarms.
#include "ui/mainwindow/Alarms.h"

#include "simulation/DueAlarms.h"

namespace tarvelin {

Alarms::Alarms(const Inputs& inputs, const Environment& environment, QObject* parent)
    : QObject(parent),
      m_inputs(inputs),
      m_environment(environment),
      m_configuration(environment.programFolder, environment.files),
      m_Tmr_BauWeckfunktion(QStringLiteral("Tmr_BauWeckfunktion"), this),
      m_Tmr_Schlafweckfunktion(QStringLiteral("Tmr_Schlafweckfunktion"), this) {
    connect(&inputs.Chk_BauWeckfunktion, &QCheckBox::toggled, &m_Tmr_BauWeckfunktion,
            &SecondTimer::SetRunning);
    connect(&inputs.Chk_Schlafzeitenwecker, &QCheckBox::toggled, &m_Tmr_Schlafweckfunktion,
            &SecondTimer::SetRunning);
    connect(&m_Tmr_BauWeckfunktion, &QTimer::timeout, this, &Alarms::Tmr_BauWeckfunktion_Tick);
    connect(&m_Tmr_Schlafweckfunktion, &QTimer::timeout, this,
            &Alarms::Tmr_Schlafweckfunktion_Tick);
}

void Alarms::ReadConfiguration() {
    m_inputs.Chk_BauWeckfunktion.setChecked(m_configuration.IsOn(Configuration::kBaulistenwecker));
    m_inputs.Chk_Schlafzeitenwecker.setChecked(
        m_configuration.IsOn(Configuration::kSchlafzeitenwecker));
}

void Alarms::Silence() {
    m_Tmr_BauWeckfunktion.stop();
    m_Tmr_Schlafweckfunktion.stop();
}

void Alarms::Tmr_BauWeckfunktion_Tick() {
    PlayAlert(DueStarts(m_inputs.LV_Bauzeiten, m_environment.now(),
                        m_inputs.Comb_Before.currentText().toStdString()));
}

void Alarms::Tmr_Schlafweckfunktion_Tick() {
    PlayAlert(DueSleepEnds(m_inputs.LV_Schlafzeiten, m_environment.now()));
}

// Plays once per due row. Each sound cuts off the one before.
void Alarms::PlayAlert(std::size_t times) {
    for (std::size_t i = 0; i < times; ++i) {
        m_environment.sound.Play(m_configuration.Alertsound());
    }
}

}  // namespace tarvelin
