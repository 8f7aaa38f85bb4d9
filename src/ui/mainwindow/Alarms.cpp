// Boxes, ticks and sounds of the alarms.
#include "ui/mainwindow/Alarms.h"

#include "simulation/DueAlarms.h"

namespace tarvelin {

Alarme::Alarme(const Quellen& quellen, const Environment& umgebung, QObject* parent)
    : QObject(parent),
      m_quellen(quellen),
      m_umgebung(umgebung),
      m_konfiguration(umgebung.programFolder, umgebung.files),
      m_Tmr_BauWeckfunktion(QStringLiteral("Tmr_BauWeckfunktion"), this),
      m_Tmr_Schlafweckfunktion(QStringLiteral("Tmr_Schlafweckfunktion"), this) {
    connect(&quellen.Chk_BauWeckfunktion, &QCheckBox::toggled, &m_Tmr_BauWeckfunktion,
            &SecondTimer::SetRunning);
    connect(&quellen.Chk_Schlafzeitenwecker, &QCheckBox::toggled, &m_Tmr_Schlafweckfunktion,
            &SecondTimer::SetRunning);
    connect(&m_Tmr_BauWeckfunktion, &QTimer::timeout, this, &Alarme::Tmr_BauWeckfunktion_Tick);
    connect(&m_Tmr_Schlafweckfunktion, &QTimer::timeout, this,
            &Alarme::Tmr_Schlafweckfunktion_Tick);
}

void Alarme::LiesKonfiguration() {
    m_quellen.Chk_BauWeckfunktion.setChecked(m_konfiguration.IsOn(Configuration::kBaulistenwecker));
    m_quellen.Chk_Schlafzeitenwecker.setChecked(
        m_konfiguration.IsOn(Configuration::kSchlafzeitenwecker));
}

void Alarme::Verstumme() {
    m_Tmr_BauWeckfunktion.stop();
    m_Tmr_Schlafweckfunktion.stop();
}

void Alarme::Tmr_BauWeckfunktion_Tick() {
    PlayAlert(DueStarts(m_quellen.LV_Bauzeiten, m_umgebung.now(),
                        m_quellen.Comb_Before.currentText().toStdString()));
}

void Alarme::Tmr_Schlafweckfunktion_Tick() {
    PlayAlert(DueSleepEnds(m_quellen.LV_Schlafzeiten, m_umgebung.now()));
}

// Once for each row that rings; the last one is heard to its end.
void Alarme::PlayAlert(std::size_t mal) {
    for (std::size_t i = 0; i < mal; ++i) {
        m_umgebung.sound.Play(m_konfiguration.Alertsound());
    }
}

}  // namespace tarvelin
