// The panel "Schlaf/Pausen-zeiten:": when the player can't give orders.
#pragma once

#include <QCalendarWidget>
#include <QCheckBox>

#include "plan/SleepTable.h"
#include "ui/services/Environment.h"
#include "ui/widgets/ListView.h"
#include "ui/widgets/Panel.h"
#include "ui/widgets/TableModel.h"

namespace tarvelin {

class Fra_Sleep : public Panel {
    Q_OBJECT

  public:
    /// Edits `tabelle`, which must outlive the panel, as must `umgebung`.
    Fra_Sleep(SleepTable& tabelle, const Environment& umgebung, QWidget* parent);

    /// After the table changed. No row is selected then.
    void Zeige();
    void RefreshSchlafEnde();

    ListView* const LV_Schlafzeiten;
    QCheckBox* const Chk_Schlafzeitenwecker;

  signals:
    /// The user has changed the table.
    void Geaendert();

  private:
    void BaueEingaben();
    void LegeAus();
    QLayout* NeueZeiten(QPushButton* add);
    QPushButton* NeuerTabellenknopf(const char* name, const char* text,
                                    void (Fra_Sleep::*handler)());
    void Blaettere(int jahr, int monat);
    [[nodiscard]] SleepInput Lies() const;
    void Cmd_AddSchlafzeit_Click();
    void Cmd_RemoveSchlafzeit_Click();
    void Cmd_ClearSchlafzeiten_Click();

    SleepTable& m_tabelle;
    const Environment& m_umgebung;
    TableModel* m_modell;
    QCalendarWidget* m_SchlafKalender;
    /// Hours and minutes of the start, then of the duration.
    std::vector<TextInput*> m_zeiten;
    QLabel* m_LBL_Schlafendzeit;
};

}  // namespace tarvelin
