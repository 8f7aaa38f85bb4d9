// Calendar, times and table of the sleep windows.
#include "ui/mainwindow/Fra_Sleep.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <algorithm>
#include <array>

namespace tarvelin {

namespace {

TableModel::Provider QuelleVon(const SleepTable& tabelle) {
    return {.rows = [&tabelle] { return tabelle.size(); },
            .text =
                [&tabelle](std::size_t zeile, int spalte) {
                    const SleepRow& z = tabelle[zeile];
                    return ToQString(spalte == 0 ? z.Startzeit : z.Endzeit);
                }};
}

/// Hours and minutes, first of the start, then of the duration.
struct Zeitfeld {
    const char* Name;
    const char* Bedeutung;
    std::string SleepInput::*Wert;
};

constexpr std::array<Zeitfeld, 4> kZeitfelder{{
    {"txt_SchlafStartStunden", "Startzeit, Stunden", &SleepInput::startHours},
    {"txt_SchlafStartMinuten", "Startzeit, Minuten", &SleepInput::startMinutes},
    {"txt_SchlafdauerStunden", "Dauer, Stunden", &SleepInput::durationHours},
    {"txt_SchlafdauerMinuten", "Dauer, Minuten", &SleepInput::durationMinutes},
}};

QDate AlsDatum(DateTime zeitpunkt) {
    return QDate::fromString(ToQString(DateText(zeitpunkt)), QStringLiteral("dd.MM.yyyy"));
}

QCalendarWidget* NeuerKalender(const QDate& tag, QWidget* parent) {
    auto* const kalender = new QCalendarWidget(parent);
    kalender->setObjectName(QStringLiteral("SchlafKalender"));
    kalender->setAccessibleName(QStringLiteral("Tag der Startzeit"));
    kalender->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    // Digits typed into the page would go to another month.
    kalender->setDateEditEnabled(false);
    kalender->setSelectedDate(tag);
    for (const auto& [teil, bedeutung] : {std::pair("qt_calendar_prevmonth", "Voriger Monat"),
                                          std::pair("qt_calendar_nextmonth", "Nächster Monat"),
                                          std::pair("qt_calendar_yearedit", "Jahr")}) {
        if (auto* const knopf = kalender->findChild<QWidget*>(QString::fromLatin1(teil))) {
            knopf->setAccessibleName(QString::fromUtf8(bedeutung));
        }
    }
    return kalender;
}

}  // namespace

Fra_Sleep::Fra_Sleep(SleepTable& tabelle, const Environment& umgebung, QWidget* parent)
    : Panel(QStringLiteral("Fra_Sleep"), QStringLiteral("Schlaf/Pausen-zeiten:"),
            {160, 2, 6855, 3615}, parent),
      LV_Schlafzeiten(new ListView(QStringLiteral("LV_Schlafzeiten"),
                                   QStringLiteral("Schlafzeiten"), {2646, 2646}, this)),
      Chk_Schlafzeitenwecker(new QCheckBox(QStringLiteral("Wecker-Funktion"), this)),
      m_tabelle(tabelle),
      m_umgebung(umgebung),
      m_modell(new TableModel({QStringLiteral("Startzeit"), QStringLiteral("Endzeit")},
                              QuelleVon(tabelle), this)),
      m_SchlafKalender(NeuerKalender(AlsDatum(umgebung.now()), this)),
      m_LBL_Schlafendzeit(NewLabel(QStringLiteral("LBL_Schlafendzeit"), {}, this)) {
    LV_Schlafzeiten->setModel(m_modell);
    Chk_Schlafzeitenwecker->setObjectName(QStringLiteral("Chk_Schlafzeitenwecker"));
    Chk_Schlafzeitenwecker->setToolTip(
        QStringLiteral(" Eine Minute vor jeder Endzeit ertönt ein Alarmton "));
    connect(m_SchlafKalender, &QCalendarWidget::selectionChanged, this,
            &Fra_Sleep::RefreshSchlafEnde);
    connect(m_SchlafKalender, &QCalendarWidget::currentPageChanged, this, &Fra_Sleep::Blaettere);
    BaueEingaben();
    LegeAus();
    SetFirstControl(m_SchlafKalender);
    RefreshSchlafEnde();
    hide();
}

void Fra_Sleep::BaueEingaben() {
    for (const Zeitfeld& feld : kZeitfelder) {
        auto* const eingabe = new TextInput(QString::fromLatin1(feld.Name),
                                            QString::fromLatin1(feld.Bedeutung), 2, this);
        constexpr int kBreite = 22;
        eingabe->setFixedWidth(kBreite);
        eingabe->Assign(SleepInput().*feld.Wert);
        connect(eingabe, &QLineEdit::textChanged, this, &Fra_Sleep::RefreshSchlafEnde);
        m_zeiten.push_back(eingabe);
    }
}

QPushButton* Fra_Sleep::NeuerTabellenknopf(const char* name, const char* text,
                                           void (Fra_Sleep::*handler)()) {
    QPushButton* const knopf =
        NewButton(QString::fromLatin1(name), QString::fromLatin1(text), this);
    connect(knopf, &QPushButton::clicked, this, handler);
    return knopf;
}

QLayout* Fra_Sleep::NeueZeiten(QPushButton* add) {
    auto* const zeiten = new QGridLayout;
    zeiten->setSpacing(3);
    for (std::size_t i = 0; i < m_zeiten.size(); i += 2) {
        const auto zeile = static_cast<int>(i / 2);
        zeiten->addWidget(
            NewLabel({}, i == 0 ? QStringLiteral("Startzeit:") : QStringLiteral("Dauer:"), this),
            zeile, 0);
        zeiten->addWidget(m_zeiten[i], zeile, 1);
        zeiten->addWidget(NewLabel({}, QStringLiteral(":"), this), zeile, 2);
        zeiten->addWidget(m_zeiten[i + 1], zeile, 3);
    }
    zeiten->addWidget(NewLabel({}, QStringLiteral("Endzeit:"), this), 2, 0);
    zeiten->addWidget(m_LBL_Schlafendzeit, 2, 1, 1, 4);
    zeiten->addWidget(add, 0, 4, 2, 1);
    zeiten->setColumnStretch(4, 1);
    return zeiten;
}

void Fra_Sleep::LegeAus() {
    QPushButton* const add =
        NeuerTabellenknopf("Cmd_AddSchlafzeit", "Add", &Fra_Sleep::Cmd_AddSchlafzeit_Click);
    QPushButton* const loesche = NeuerTabellenknopf("Cmd_RemoveSchlafzeit", "Delete",
                                                    &Fra_Sleep::Cmd_RemoveSchlafzeit_Click);
    QPushButton* const leere = NeuerTabellenknopf("Cmd_ClearSchlafzeiten", "Clear",
                                                  &Fra_Sleep::Cmd_ClearSchlafzeiten_Click);
    QPushButton* const schliesse = NewHideButton(QStringLiteral("Cmd_HideSleep"));
    auto* const knoepfe = new QHBoxLayout;
    knoepfe->setSpacing(3);
    knoepfe->addWidget(loesche);
    knoepfe->addWidget(leere);
    knoepfe->addWidget(schliesse);

    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(4, 2, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(m_SchlafKalender, 0, 0);
    layout->addLayout(NeueZeiten(add), 1, 0, 2, 1);
    layout->addWidget(LV_Schlafzeiten, 0, 1);
    layout->addWidget(Chk_Schlafzeitenwecker, 1, 1);
    layout->addLayout(knoepfe, 2, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    ChainTabOrder({m_SchlafKalender, m_zeiten[0], m_zeiten[1], m_zeiten[2], m_zeiten[3], add,
                   LV_Schlafzeiten, Chk_Schlafzeitenwecker, loesche, leere, schliesse});
}

void Fra_Sleep::Zeige() {
    m_modell->Refresh();
    // The row at its place would be another one.
    LV_Schlafzeiten->setCurrentIndex({});
}

SleepInput Fra_Sleep::Lies() const {
    SleepInput eingabe;
    eingabe.date =
        m_SchlafKalender->selectedDate().toString(QStringLiteral("dd.MM.yyyy")).toStdString();
    for (std::size_t i = 0; i < kZeitfelder.size(); ++i) {
        eingabe.*kZeitfelder[i].Wert = m_zeiten[i]->Utf8();
    }
    return eingabe;
}

// The selected day goes along, so that what is shown is what counts.
void Fra_Sleep::Blaettere(int jahr, int monat) {
    const QDate tag = m_SchlafKalender->selectedDate();
    if (tag.year() != jahr || tag.month() != monat) {
        const int letzter = QDate(jahr, monat, 1).daysInMonth();
        m_SchlafKalender->setSelectedDate(QDate(jahr, monat, std::min(tag.day(), letzter)));
    }
}

void Fra_Sleep::RefreshSchlafEnde() {
    m_LBL_Schlafendzeit->setText(ToQString(SleepEndText(Lies())));
}

void Fra_Sleep::Cmd_AddSchlafzeit_Click() {
    if (const auto meldung = AddSleepRow(Lies(), m_tabelle)) {
        m_umgebung.dialogs.Show(*meldung);
        return;
    }
    Zeige();
    const QModelIndex neue = m_modell->index(m_modell->rowCount() - 1, 0);
    LV_Schlafzeiten->scrollTo(neue);
    LV_Schlafzeiten->setCurrentIndex(neue);
    emit Geaendert();
}

void Fra_Sleep::Cmd_RemoveSchlafzeit_Click() {
    const QModelIndexList gewaehlt = LV_Schlafzeiten->selectionModel()->selectedRows();
    if (!gewaehlt.isEmpty()) {
        m_tabelle.erase(m_tabelle.begin() + gewaehlt.first().row());
        Zeige();
        emit Geaendert();
    }
}

void Fra_Sleep::Cmd_ClearSchlafzeiten_Click() {
    if (m_umgebung.dialogs.Ask({.text = "Wirklich alle löschen ?", .title = ""})) {
        m_tabelle.clear();
        Zeige();
        emit Geaendert();
    }
}

}  // namespace tarvelin
