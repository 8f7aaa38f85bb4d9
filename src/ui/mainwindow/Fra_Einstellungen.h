// The panel "Einstellungen:": the parameters of a plan that are no rows.
#pragma once

#include <QCheckBox>

#include "plan/Plan.h"
#include "ui/widgets/Panel.h"

namespace tarvelin {

class Fra_Einstellungen : public Panel {
    Q_OBJECT

  public:
    /// Edits the parameters of `plan` and its `ShowDesc`; it must outlive the panel.
    Fra_Einstellungen(Plan& plan, QWidget* parent);

    /// After the program changed the parameters.
    void Zeige();
    void RefreshWeekday();
    void Zeige(const WeekdayLabel& wochentag);

  signals:
    /// The user has changed a parameter of a run in the input of this name.
    void Geaendert(const QString& eingabe);
    void Chk_Speedfaktor_Click();
    void cmd_ShowDesc_Click();

  private:
    QWidget* NeueTemperaturen();
    QWidget* NeueStartzeit();
    QLayout* NeueDatumszeile(QWidget* gruppe);
    QLayout* NeueUhrzeile(QWidget* gruppe);
    QWidget* NeuerKlickPuffer();
    QWidget* NeueBeschreibungen();
    QWidget* NeuerSpeedfaktor();
    TextInput* NeueStartzeitEingabe(const char* name, const char* bedeutung, int grenze, int breite,
                                    std::string StartParameters::*wert);

    void ZeigeTemperaturen();
    void ZeigeShowDesc();

    Plan& m_plan;

    struct Datumsteil {
        TextInput* Input;
        std::string StartParameters::*Wert;
    };
    /// Day, month, year, hour and minute.
    std::vector<Datumsteil> m_startzeit;
    TextInput* m_txt_TempMin = nullptr;
    TextInput* m_txt_TempMax = nullptr;
    QLabel* m_LBL_Weekday = nullptr;
    QSlider* m_HSC_KlickPuffer = nullptr;
    QLabel* m_LBL_KlickPuffer = nullptr;
    QPushButton* m_cmd_ShowDesc = nullptr;
    QCheckBox* m_Chk_Speedfaktor = nullptr;
};

}  // namespace tarvelin
