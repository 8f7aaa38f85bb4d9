// Layout of the page, and its way to the document and back.
#include "ui/workbench/PlanetPage.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/widgets/Controls.h"
#include "ui/workbench/PageParts.h"

namespace tarvelin {

namespace {

void SetStart(StartParameters& parameters, const QDateTime& start) {
    const auto text = [&](const char* format) {
        return start.toString(QString::fromLatin1(format)).toStdString();
    };
    parameters.UniStartZeitTag = text("dd");
    parameters.UniStartZeitMonat = text("MM");
    parameters.UniStartZeitJahr = text("yyyy");
    parameters.UniStartZeitStunden = text("hh");
    parameters.UniStartZeitMinuten = text("mm");
}

}  // namespace

PlanetPage::PlanetPage(Document& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_start(NewInput<QDateTimeEdit>("Planet_Start", "Start des Plans", this)),
      m_startHint(NewLabel(QStringLiteral("LBL_Planetstart"), {}, this)),
      m_tempMin(NewInput<QLineEdit>("Planet_TempMin", "Minimaltemperatur", this)),
      m_tempMax(NewInput<QLineEdit>("Planet_TempMax", "Maximaltemperatur", this)),
      m_klickPuffer(NewInput<QSpinBox>("Planet_KlickPuffer", "Klickpuffer in Sekunden", this)),
      m_speed(NewInput<QCheckBox>("Planet_Tempo", "Doppelte Geschwindigkeit", this)) {
    setObjectName(QStringLiteral("Planetfeld"));
    m_start->setDisplayFormat(QStringLiteral("ddd dd.MM.yyyy HH:mm"));
    m_start->setCalendarPopup(true);
    m_start->setDateRange(QDate(1900, 1, 1), QDate(9999, 12, 31));
    m_klickPuffer->setRange(0, kMaxKlickPuffer);
    m_klickPuffer->setSuffix(QStringLiteral(" s"));
    m_speed->setText(QStringLiteral("Das Universum ist &doppelt so schnell"));
    Arrange();
    ConnectSignals();
    Refresh();
}

void PlanetPage::Arrange() {
    auto* const temperatures = new QHBoxLayout;
    temperatures->addWidget(m_tempMin);
    temperatures->addWidget(new QLabel(QStringLiteral("bis"), this));
    temperatures->addWidget(m_tempMax);
    temperatures->addWidget(new QLabel(QStringLiteral("°C"), this));
    m_startHint->setWordWrap(true);
    auto* const form = new QFormLayout;
    form->setVerticalSpacing(kControlGap);
    form->addRow(QStringLiteral("&Start:"), m_start);
    form->addRow(QString(), m_startHint);
    auto* const label = new QLabel(QStringLiteral("&Temperatur:"), this);
    label->setBuddy(m_tempMin);
    form->addRow(label, temperatures);
    form->addRow(QStringLiteral("&Klickpuffer:"), m_klickPuffer);
    form->addRow(QString(), m_speed);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
    layout->setSpacing(kSectionGap);
    layout->addLayout(form);
    layout->addWidget(
        NewHint(QStringLiteral(
                    "Der Start ist der Moment, in dem du einsteigst. Die Temperatur steht in der "
                    "Übersicht deines Planeten; Min und Max liegen immer 40 Grad auseinander. Der "
                    "Klickpuffer ist die Zeit, die du für jeden Klick brauchst."),
                this));
    layout->addStretch(1);
}

template <class Change>
void PlanetPage::Edit(const QWidget& control, Change change) {
    StartParameters parameters = Parameters();
    change(parameters);
    if (parameters != Parameters()) {
        m_document.SetParameters(parameters, control.objectName().toStdString());
    }
}

void PlanetPage::ConnectSignals() {
    connect(m_start, &QDateTimeEdit::dateTimeChanged, this, [this](const QDateTime& start) {
        Edit(*m_start, [&](StartParameters& parameters) { SetStart(parameters, start); });
    });
    for (const auto& [input, change] :
         {std::pair(m_tempMin, &ChangeTempMin), std::pair(m_tempMax, &ChangeTempMax)}) {
        connect(input, &QLineEdit::textEdited, this,
                [this, input = input, change = change](const QString& text) {
                    Edit(*input, [&](StartParameters& parameters) {
                        change(parameters, text.toStdString());
                    });
                });
    }
    connect(m_klickPuffer, &QSpinBox::valueChanged, this, [this](int seconds) {
        Edit(*m_klickPuffer,
             [&](StartParameters& parameters) { parameters.KlickPuffer = seconds; });
    });
    connect(m_speed, &QCheckBox::toggled, this, [this](bool set) {
        Edit(*m_speed, [&](StartParameters& parameters) { parameters.Speedfaktor_X2 = set; });
    });
}

void PlanetPage::Refresh() {
    const QSignalBlocker quietStart(m_start);
    const QSignalBlocker quietBuffer(m_klickPuffer);
    const QSignalBlocker quietSpeed(m_speed);
    const auto start = ReadUniStartZeit(Parameters());
    if (start) {
        m_start->setDateTime(ToQDateTime(*start));
    }
    m_startHint->setText(start ? QString()
                               : QStringLiteral("Der Start des Plans ist kein gültiges Datum."));
    m_startHint->setVisible(!start);
    for (const auto& [input, text] :
         {std::pair(m_tempMin, Parameters().tempMin), std::pair(m_tempMax, Parameters().TempMax)}) {
        if (input->text() != ToQString(text)) {
            input->setText(ToQString(text));
        }
    }
    m_klickPuffer->setValue(Parameters().KlickPuffer);
    m_speed->setChecked(Parameters().Speedfaktor_X2);
}

}  // namespace tarvelin
