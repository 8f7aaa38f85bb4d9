// Inputs of the start parameters: each change goes into the plan at once.
#include "ui/mainwindow/Fra_Einstellungen.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tarvelin {

namespace {

constexpr int kZweistellig = 20;
constexpr int kVierstellig = 32;

/// An inner group with its explaining label, and a row for its controls.
QHBoxLayout* NeueZeile(GroupBox* gruppe, QLabel* hoverInfo) {
    gruppe->SetCornerLabel(hoverInfo);
    auto* const zeile = new QHBoxLayout(gruppe);
    zeile->setContentsMargins(4, 2, 4, 3);
    zeile->setSpacing(3);
    return zeile;
}

QHBoxLayout* NeueMittelzeile(const std::vector<QWidget*>& teile) {
    auto* const zeile = new QHBoxLayout;
    zeile->setSpacing(2);
    zeile->addStretch();
    for (QWidget* const teil : teile) {
        zeile->addWidget(teil);
    }
    zeile->addStretch();
    return zeile;
}

}  // namespace

Fra_Einstellungen::Fra_Einstellungen(Plan& plan, QWidget* parent)
    : Panel(QStringLiteral("Fra_Einstellungen"), QStringLiteral("Einstellungen:"),
            {0, 2, 2295, 3975}, parent),
      m_plan(plan) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(3, 1, 3, 3);
    layout->setSpacing(2);
    layout->addWidget(NeueTemperaturen());
    layout->addWidget(NeueStartzeit());
    layout->addWidget(NeuerKlickPuffer());
    layout->addWidget(NeueBeschreibungen());
    layout->addWidget(NeuerSpeedfaktor());
    layout->addStretch();
    layout->addWidget(NewHideButton(QStringLiteral("Cmd_HideEinstellungen")));
    SetFirstControl(m_txt_TempMin);
    Zeige();
    RefreshWeekday();
}

QWidget* Fra_Einstellungen::NeueTemperaturen() {
    auto* const gruppe = new GroupBox({}, QStringLiteral("Min/Max-Temp:"), this);
    QHBoxLayout* const zeile = NeueZeile(
        gruppe, NewHoverInfo(QStringLiteral("Label7"),
                             QStringLiteral("  Minimal und Maximal-Temperatur des Startplaneten  "),
                             gruppe));
    const auto neue = [&](const char* name, const char* bedeutung, auto aendere) {
        auto* const eingabe =
            new TextInput(QString::fromLatin1(name), QString::fromLatin1(bedeutung),
                          TextInput::kUnlimited, gruppe);
        connect(eingabe, &QLineEdit::textChanged, this,
                [this, eingabe, aendere](const QString& text) {
                    aendere(m_plan.parameters, text.toStdString());
                    ZeigeTemperaturen();
                    emit Geaendert(eingabe->objectName());
                });
        return eingabe;
    };
    m_txt_TempMin = neue("txt_TempMin", "Minimaltemperatur", ChangeTempMin);
    m_txt_TempMax = neue("txt_TempMax", "Maximaltemperatur", ChangeTempMax);
    zeile->addWidget(NewLabel({}, QStringLiteral("Min:"), gruppe));
    zeile->addWidget(m_txt_TempMin);
    zeile->addWidget(NewLabel({}, QStringLiteral("Max:"), gruppe));
    zeile->addWidget(m_txt_TempMax);
    return gruppe;
}

TextInput* Fra_Einstellungen::NeueStartzeitEingabe(const char* name, const char* bedeutung,
                                                   int grenze, int breite,
                                                   std::string StartParameters::*wert) {
    auto* const eingabe =
        new TextInput(QString::fromLatin1(name), QString::fromLatin1(bedeutung), grenze, this);
    eingabe->setFixedWidth(breite);
    connect(eingabe, &QLineEdit::textChanged, this, [this, eingabe, wert](const QString& text) {
        m_plan.parameters.*wert = text.toStdString();
        emit Geaendert(eingabe->objectName());
    });
    m_startzeit.push_back({eingabe, wert});
    return eingabe;
}

QWidget* Fra_Einstellungen::NeueStartzeit() {
    auto* const gruppe = new GroupBox({}, QStringLiteral("Startzeit:"), this);
    gruppe->SetCornerLabel(NewHoverInfo(
        QStringLiteral("Label4"),
        QStringLiteral("  Zeitpunkt, an dem das Uni gestartet hat, bzw du eingestiegen bist "),
        gruppe));
    auto* const layout = new QVBoxLayout(gruppe);
    layout->setContentsMargins(4, 2, 4, 3);
    layout->setSpacing(3);
    layout->addLayout(NeueDatumszeile(gruppe));
    layout->addLayout(NeueUhrzeile(gruppe));
    return gruppe;
}

QLayout* Fra_Einstellungen::NeueDatumszeile(QWidget* gruppe) {
    using P = StartParameters;
    m_LBL_Weekday = NewLabel(QStringLiteral("LBL_Weekday"), {}, gruppe);
    QLayout* const zeile = NeueMittelzeile(
        {m_LBL_Weekday,
         NeueStartzeitEingabe("txt_UniStartZeitTag", "Tag", 2, kZweistellig, &P::UniStartZeitTag),
         NewLabel({}, QStringLiteral("."), gruppe),
         NeueStartzeitEingabe("txt_UniStartZeitMonat", "Monat", 2, kZweistellig,
                              &P::UniStartZeitMonat),
         NewLabel({}, QStringLiteral("."), gruppe),
         NeueStartzeitEingabe("txt_UniStartZeitJahr", "Jahr", 4, kVierstellig,
                              &P::UniStartZeitJahr)});
    // Hour and minute leave the weekday as it is.
    for (const Datumsteil& teil : m_startzeit) {
        connect(teil.Input, &QLineEdit::textChanged, this, &Fra_Einstellungen::RefreshWeekday);
    }
    return zeile;
}

QLayout* Fra_Einstellungen::NeueUhrzeile(QWidget* gruppe) {
    using P = StartParameters;
    return NeueMittelzeile({NeueStartzeitEingabe("txt_UniStartZeitStunden", "Stunden", 2,
                                                 kZweistellig, &P::UniStartZeitStunden),
                            NewLabel({}, QStringLiteral(":"), gruppe),
                            NeueStartzeitEingabe("txt_UniStartZeitMinuten", "Minuten", 2,
                                                 kZweistellig, &P::UniStartZeitMinuten),
                            NewLabel({}, QStringLiteral("Uhr"), gruppe)});
}

QWidget* Fra_Einstellungen::NeuerKlickPuffer() {
    auto* const gruppe = new GroupBox({}, QStringLiteral("[Klick-]Puffer:"), this);
    QHBoxLayout* const zeile = NeueZeile(
        gruppe,
        NewHoverInfo(
            QStringLiteral("Label6"),
            QStringLiteral("  Zeit, die du dir selbst gibst, bis du wirklich geklickt hast. "),
            gruppe));
    m_HSC_KlickPuffer =
        NewSlider(QStringLiteral("HSC_KlickPuffer"), QStringLiteral("Klickpuffer in Sekunden"),
                  kMaxKlickPuffer, gruppe);
    constexpr int kGrosserSchritt = 10;
    m_HSC_KlickPuffer->setPageStep(kGrosserSchritt);
    m_LBL_KlickPuffer = NewLabel(QStringLiteral("LBL_KlickPuffer"), {}, gruppe);
    connect(m_HSC_KlickPuffer, &QSlider::valueChanged, this, [this](int sekunden) {
        m_LBL_KlickPuffer->setText(ToQString(KlickPufferText(sekunden)));
        // The program moves it to where the plan is already.
        if (m_plan.parameters.KlickPuffer != sekunden) {
            m_plan.parameters.KlickPuffer = sekunden;
            emit Geaendert(m_HSC_KlickPuffer->objectName());
        }
    });
    zeile->addWidget(m_HSC_KlickPuffer);
    zeile->addWidget(m_LBL_KlickPuffer);
    return gruppe;
}

QWidget* Fra_Einstellungen::NeueBeschreibungen() {
    auto* const gruppe = new GroupBox({}, QStringLiteral("Beschreibungen:"), this);
    QHBoxLayout* const zeile = NeueZeile(
        gruppe,
        NewHoverInfo(QStringLiteral("Label9"),
                     QStringLiteral("  Blendet die Namen der Gebäude/Forschungen/Raumschiffe ein "),
                     gruppe));
    m_cmd_ShowDesc = NewButton(QStringLiteral("cmd_ShowDesc"), {}, gruppe);
    connect(m_cmd_ShowDesc, &QPushButton::clicked, this, [this] {
        m_plan.ShowDesc = !m_plan.ShowDesc;
        ZeigeShowDesc();
        emit cmd_ShowDesc_Click();
    });
    zeile->addWidget(m_cmd_ShowDesc);
    return gruppe;
}

QWidget* Fra_Einstellungen::NeuerSpeedfaktor() {
    auto* const gruppe = new GroupBox({}, QStringLiteral("Speedfaktor:"), this);
    QHBoxLayout* const zeile = NeueZeile(
        gruppe, NewHoverInfo(QStringLiteral("Label15"),
                             QStringLiteral(
                                 "  Gobaler Geschwindigkeits-Multiplikator( für Uni50: 2x Speed )"),
                             gruppe));
    m_Chk_Speedfaktor = new QCheckBox(QStringLiteral("Speedfaktor x2 !"), gruppe);
    m_Chk_Speedfaktor->setObjectName(QStringLiteral("Chk_Speedfaktor"));
    connect(m_Chk_Speedfaktor, &QCheckBox::clicked, this, [this](bool gesetzt) {
        m_plan.parameters.Speedfaktor_X2 = gesetzt;
        emit Chk_Speedfaktor_Click();
        emit Geaendert(m_Chk_Speedfaktor->objectName());
    });
    zeile->addWidget(m_Chk_Speedfaktor);
    return gruppe;
}

void Fra_Einstellungen::Zeige() {
    constexpr std::size_t kDatumsteile = 3;
    for (std::size_t i = 0; i < m_startzeit.size(); ++i) {
        const bool geaendert = m_startzeit[i].Input->Assign(m_plan.parameters.*m_startzeit[i].Wert);
        if (geaendert && i < kDatumsteile) {
            RefreshWeekday();
        }
    }
    ZeigeTemperaturen();
    m_HSC_KlickPuffer->setValue(m_plan.parameters.KlickPuffer);
    m_LBL_KlickPuffer->setText(ToQString(KlickPufferText(m_plan.parameters.KlickPuffer)));
    m_Chk_Speedfaktor->setChecked(m_plan.parameters.Speedfaktor_X2);
    ZeigeShowDesc();
}

// Of what the inputs show: a part of the date that comes next doesn't count yet.
void Fra_Einstellungen::RefreshWeekday() {
    StartParameters gezeigte;
    for (const Datumsteil& teil : m_startzeit) {
        gezeigte.*teil.Wert = teil.Input->Utf8();
    }
    Zeige(tarvelin::RefreshWeekday(gezeigte));
}

void Fra_Einstellungen::Zeige(const WeekdayLabel& wochentag) {
    m_LBL_Weekday->setText(ToQString(wochentag.caption));
    m_LBL_Weekday->setToolTip(ToQString(wochentag.hint));
}

void Fra_Einstellungen::ZeigeTemperaturen() {
    m_txt_TempMin->Assign(m_plan.parameters.tempMin);
    m_txt_TempMax->Assign(m_plan.parameters.TempMax);
}

void Fra_Einstellungen::ZeigeShowDesc() {
    // The capitals mark the state that holds.
    m_cmd_ShowDesc->setText(m_plan.ShowDesc ? QStringLiteral("EIN/aus")
                                            : QStringLiteral("ein/AUS"));
}

}  // namespace tarvelin
