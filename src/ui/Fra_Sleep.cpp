// Calendar, times and table of the sleep windows.
#include "ui/Fra_Sleep.h"

#include <QGridLayout>
#include <QHBoxLayout>

namespace tarvelin {

namespace {

Tabellenmodell::Quelle QuelleVon(const Schlaftabelle& tabelle) {
    return {.Zeilen = [&tabelle] { return tabelle.size(); },
            .Text =
                [&tabelle](std::size_t zeile, int spalte) {
                    const SchlafzeitZeile& z = tabelle[zeile];
                    return AlsQString(spalte == 0 ? z.Startzeit : z.Endzeit);
                }};
}

QDate AlsDatum(Zeitpunkt zeitpunkt) {
    return QDate::fromString(AlsQString(Datumtext(zeitpunkt)), QStringLiteral("dd.MM.yyyy"));
}

}  // namespace

Fra_Sleep::Fra_Sleep(Schlaftabelle& tabelle, const Umgebung& umgebung, QWidget* parent)
    : Feld(QStringLiteral("Fra_Sleep"), QStringLiteral("Schlaf/Pausen-zeiten:"),
           {160, 2, 6855, 3615}, parent),
      LV_Schlafzeiten(new Liste(QStringLiteral("LV_Schlafzeiten"), QStringLiteral("Schlafzeiten"),
                                {2646, 2646}, this)),
      Chk_Schlafzeitenwecker(new QCheckBox(QStringLiteral("Wecker-Funktion"), this)),
      m_tabelle(tabelle),
      m_umgebung(umgebung),
      m_modell(new Tabellenmodell({QStringLiteral("Startzeit"), QStringLiteral("Endzeit")},
                                  QuelleVon(tabelle), this)),
      m_SchlafKalender(new QCalendarWidget(this)),
      m_txt_SchlafStartStunden(new Eingabe(QStringLiteral("txt_SchlafStartStunden"),
                                           QStringLiteral("Startzeit, Stunden"), 2, this)),
      m_txt_SchlafStartMinuten(new Eingabe(QStringLiteral("txt_SchlafStartMinuten"),
                                           QStringLiteral("Startzeit, Minuten"), 2, this)),
      m_txt_SchlafdauerStunden(new Eingabe(QStringLiteral("txt_SchlafdauerStunden"),
                                           QStringLiteral("Dauer, Stunden"), 2, this)),
      m_txt_SchlafdauerMinuten(new Eingabe(QStringLiteral("txt_SchlafdauerMinuten"),
                                           QStringLiteral("Dauer, Minuten"), 2, this)),
      m_LBL_Schlafendzeit(NeuesLabel(QStringLiteral("LBL_Schlafendzeit"), {}, this)) {
    LV_Schlafzeiten->setModel(m_modell);
    Chk_Schlafzeitenwecker->setObjectName(QStringLiteral("Chk_Schlafzeitenwecker"));
    Chk_Schlafzeitenwecker->setToolTip(
        QStringLiteral(" Eine Minute vor jeder Endzeit ertönt ein Alarmton "));
    m_SchlafKalender->setObjectName(QStringLiteral("SchlafKalender"));
    m_SchlafKalender->setAccessibleName(QStringLiteral("Tag der Startzeit"));
    for (const auto& [teil, bedeutung] : {std::pair("qt_calendar_prevmonth", "Voriger Monat"),
                                          std::pair("qt_calendar_nextmonth", "Nächster Monat"),
                                          std::pair("qt_calendar_yearedit", "Jahr")}) {
        m_SchlafKalender->findChild<QWidget*>(QString::fromLatin1(teil))
            ->setAccessibleName(QString::fromUtf8(bedeutung));
    }
    m_SchlafKalender->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    m_SchlafKalender->setSelectedDate(AlsDatum(m_umgebung.Jetzt()));
    connect(m_SchlafKalender, &QCalendarWidget::selectionChanged, this,
            &Fra_Sleep::RefreshSchlafEnde);

    const Schlafeingabe anfang;
    for (const auto& [eingabe, text] : {std::pair(m_txt_SchlafStartStunden, anfang.StartStunden),
                                        std::pair(m_txt_SchlafStartMinuten, anfang.StartMinuten),
                                        std::pair(m_txt_SchlafdauerStunden, anfang.DauerStunden),
                                        std::pair(m_txt_SchlafdauerMinuten, anfang.DauerMinuten)}) {
        constexpr int kBreite = 22;
        eingabe->setFixedWidth(kBreite);
        eingabe->Setze(text);
        connect(eingabe, &QLineEdit::textChanged, this, &Fra_Sleep::RefreshSchlafEnde);
    }

    QPushButton* const add =
        NeuerKnopf(QStringLiteral("Cmd_AddSchlafzeit"), QStringLiteral("Add"), this);
    QPushButton* const loesche =
        NeuerKnopf(QStringLiteral("Cmd_RemoveSchlafzeit"), QStringLiteral("Delete"), this);
    QPushButton* const leere =
        NeuerKnopf(QStringLiteral("Cmd_ClearSchlafzeiten"), QStringLiteral("Clear"), this);
    connect(add, &QPushButton::clicked, this, &Fra_Sleep::Cmd_AddSchlafzeit_Click);
    connect(loesche, &QPushButton::clicked, this, &Fra_Sleep::Cmd_RemoveSchlafzeit_Click);
    connect(leere, &QPushButton::clicked, this, &Fra_Sleep::Cmd_ClearSchlafzeiten_Click);
    BaueAuf(add, loesche, leere);
    RefreshSchlafEnde();
    hide();
}

void Fra_Sleep::BaueAuf(QPushButton* add, QPushButton* loesche, QPushButton* leere) {
    auto* const zeiten = new QGridLayout;
    zeiten->setSpacing(3);
    const auto zeile = [&](int nummer, const char* text, Eingabe* stunden, Eingabe* minuten) {
        zeiten->addWidget(NeuesLabel({}, QString::fromLatin1(text), this), nummer, 0);
        zeiten->addWidget(stunden, nummer, 1);
        zeiten->addWidget(NeuesLabel({}, QStringLiteral(":"), this), nummer, 2);
        zeiten->addWidget(minuten, nummer, 3);
    };
    zeile(0, "Startzeit:", m_txt_SchlafStartStunden, m_txt_SchlafStartMinuten);
    zeile(1, "Dauer:", m_txt_SchlafdauerStunden, m_txt_SchlafdauerMinuten);
    zeiten->addWidget(NeuesLabel({}, QStringLiteral("Endzeit:"), this), 2, 0);
    zeiten->addWidget(m_LBL_Schlafendzeit, 2, 1, 1, 4);
    zeiten->addWidget(add, 0, 4, 2, 1);
    zeiten->setColumnStretch(4, 1);

    QPushButton* const schliesse = NeuerHideKnopf(QStringLiteral("Cmd_HideSleep"));
    auto* const knoepfe = new QHBoxLayout;
    knoepfe->setSpacing(3);
    knoepfe->addWidget(loesche);
    knoepfe->addWidget(leere);
    knoepfe->addWidget(schliesse);

    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(4, 2, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(m_SchlafKalender, 0, 0);
    layout->addLayout(zeiten, 1, 0, 2, 1);
    layout->addWidget(LV_Schlafzeiten, 0, 1);
    layout->addWidget(Chk_Schlafzeitenwecker, 1, 1);
    layout->addLayout(knoepfe, 2, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    ReiheAuf({m_SchlafKalender, m_txt_SchlafStartStunden, m_txt_SchlafStartMinuten,
              m_txt_SchlafdauerStunden, m_txt_SchlafdauerMinuten, add, LV_Schlafzeiten,
              Chk_Schlafzeitenwecker, loesche, leere, schliesse});
}

Schlafeingabe Fra_Sleep::Lies() const {
    return {
        .Datum =
            m_SchlafKalender->selectedDate().toString(QStringLiteral("dd.MM.yyyy")).toStdString(),
        .StartStunden = m_txt_SchlafStartStunden->Text(),
        .StartMinuten = m_txt_SchlafStartMinuten->Text(),
        .DauerStunden = m_txt_SchlafdauerStunden->Text(),
        .DauerMinuten = m_txt_SchlafdauerMinuten->Text()};
}

void Fra_Sleep::RefreshSchlafEnde() {
    m_LBL_Schlafendzeit->setText(AlsQString(SchlafendeText(Lies())));
}

void Fra_Sleep::Cmd_AddSchlafzeit_Click() {
    if (const auto meldung = AddSchlafzeit(Lies(), m_tabelle)) {
        m_umgebung.Boxen.Zeige(*meldung);
        return;
    }
    Zeige();
    const QModelIndex neue = m_modell->index(m_modell->rowCount() - 1, 0);
    LV_Schlafzeiten->scrollTo(neue);
    LV_Schlafzeiten->setCurrentIndex(neue);
}

void Fra_Sleep::Cmd_RemoveSchlafzeit_Click() {
    const QModelIndexList gewaehlt = LV_Schlafzeiten->selectionModel()->selectedRows();
    if (!gewaehlt.isEmpty()) {
        m_tabelle.erase(m_tabelle.begin() + gewaehlt.first().row());
        Zeige();
    }
}

void Fra_Sleep::Cmd_ClearSchlafzeiten_Click() {
    if (m_umgebung.Boxen.Stelle({.Text = "Wirklich alle löschen ?", .Titel = ""})) {
        m_tabelle.clear();
        Zeige();
    }
}

}  // namespace tarvelin
