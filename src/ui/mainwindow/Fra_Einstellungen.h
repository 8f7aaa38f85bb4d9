// The panel "Einstellungen:": temperatures, start time, click buffer, captions, speed.
#pragma once

#include <QCheckBox>

#include "plan/Plan.h"
#include "ui/widgets/Panel.h"

namespace tarvelin {

class Fra_Einstellungen : public Panel {
    Q_OBJECT

  public:
    /// Edits the parameters and `ShowDesc` of `plan`, which must outlive the panel.
    Fra_Einstellungen(Plan& plan, QWidget* parent);

    /// Call it after the program has changed the parameters.
    void Refresh();
    void RefreshWeekday();
    void Refresh(const WeekdayLabel& weekday);

  signals:
    /// The user has changed a parameter; `input` is the name of the control.
    void Edited(const QString& input);
    void Chk_Speedfaktor_Click();
    void cmd_ShowDesc_Click();

  private:
    QWidget* NewTemperatures();
    QWidget* NewStartTime();
    QLayout* NewDateRow(QWidget* group);
    QLayout* NewClockRow(QWidget* group);
    QWidget* NewKlickPuffer();
    QWidget* NewDescriptions();
    QWidget* NewSpeedfaktor();
    TextInput* NewStartTimeInput(const char* name, const char* accessibleName, int limit, int width,
                                 std::string StartParameters::*value);

    /// `position` in seconds.
    void HSC_KlickPuffer_Change(int position);
    void ShowTemperatures();
    void RefreshShowDesc();

    Plan& m_plan;

    struct DatePart {
        TextInput* input;
        std::string StartParameters::*value;
    };
    /// Day, month, year, hour and minute.
    std::vector<DatePart> m_startTime;
    TextInput* m_txt_TempMin = nullptr;
    TextInput* m_txt_TempMax = nullptr;
    QLabel* m_LBL_Weekday = nullptr;
    QSlider* m_HSC_KlickPuffer = nullptr;
    QLabel* m_LBL_KlickPuffer = nullptr;
    QPushButton* m_cmd_ShowDesc = nullptr;
    QCheckBox* m_Chk_Speedfaktor = nullptr;
};

}  // namespace tarvelin
