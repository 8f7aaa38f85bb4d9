// The panel "Einstellungen:": temperatures, start time, click buffer, captions, speed.
#pragma once

#include <QCheckBox>

#include "document/Document.h"
#include "ui/widgets/Panel.h"

namespace tarvelin {

class Fra_Einstellungen : public Panel {
    Q_OBJECT

  public:
    /// `document` must outlive the panel.
    Fra_Einstellungen(Document& document, QWidget* parent);

    /// Call it after a change of the parameters or of `ShowDesc`.
    void Refresh();
    void RefreshWeekday();
    void Refresh(const WeekdayLabel& weekday);

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

    [[nodiscard]] const StartParameters& Parameters() const {
        return m_document.CurrentPlan().parameters;
    }
    /// Lets `change` change the parameters, as the user has by this control.
    template <class Change>
    void Edit(const QWidget& control, Change change);
    /// `position` in seconds.
    void HSC_KlickPuffer_Change(int position);
    void cmd_ShowDesc_Click();
    void Chk_Speedfaktor_Click(bool set);
    void ShowTemperatures();
    void RefreshShowDesc();

    Document& m_document;

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
