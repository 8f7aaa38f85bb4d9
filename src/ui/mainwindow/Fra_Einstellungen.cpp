// Layout of the panel. Each input changes the document at once.
#include "ui/mainwindow/Fra_Einstellungen.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tarvelin {

namespace {

constexpr int kTwoDigits = 20;
constexpr int kFourDigits = 32;

/// The row of controls in an inner group, which gets its explaining label.
QHBoxLayout* NewRow(GroupBox* group, QLabel* hoverInfo) {
    group->SetCornerLabel(hoverInfo);
    auto* const row = new QHBoxLayout(group);
    row->setContentsMargins(4, 2, 4, 3);
    row->setSpacing(3);
    return row;
}

QHBoxLayout* NewCenterRow(const std::vector<QWidget*>& parts) {
    auto* const row = new QHBoxLayout;
    row->setSpacing(2);
    row->addStretch();
    for (QWidget* const part : parts) {
        row->addWidget(part);
    }
    row->addStretch();
    return row;
}

}  // namespace

Fra_Einstellungen::Fra_Einstellungen(Document& document, QWidget* parent)
    : Panel(QStringLiteral("Fra_Einstellungen"), QStringLiteral("Einstellungen:"),
            {0, 2, 2295, 3975}, parent),
      m_document(document) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(3, 1, 3, 3);
    layout->setSpacing(2);
    layout->addWidget(NewTemperatures());
    layout->addWidget(NewStartTime());
    layout->addWidget(NewKlickPuffer());
    layout->addWidget(NewDescriptions());
    layout->addWidget(NewSpeedfaktor());
    layout->addStretch();
    QPushButton* const close = NewHideButton(QStringLiteral("Cmd_HideEinstellungen"));
    connect(close, &QPushButton::clicked, this, &QWidget::hide);
    layout->addWidget(close);
    SetFirstControl(m_txt_TempMin);
    Refresh();
    RefreshWeekday();
}

template <class Change>
void Fra_Einstellungen::Edit(const QWidget& control, Change change) {
    StartParameters parameters = Parameters();
    change(parameters);
    m_document.SetParameters(parameters, control.objectName().toStdString());
}

QWidget* Fra_Einstellungen::NewTemperatures() {
    auto* const group = new GroupBox({}, QStringLiteral("Min/Max-Temp:"), this);
    QHBoxLayout* const row = NewRow(
        group, NewHoverInfo(QStringLiteral("Label7"),
                            QStringLiteral("  Minimal und Maximal-Temperatur des Startplaneten  "),
                            group));
    const auto newInput = [&](const char* name, const char* accessibleName, auto change) {
        auto* const input =
            new TextInput(QString::fromLatin1(name), QString::fromLatin1(accessibleName),
                          TextInput::kUnlimited, group);
        connect(input, &QLineEdit::textChanged, this, [this, input, change](const QString& text) {
            Edit(*input,
                 [&](StartParameters& parameters) { change(parameters, text.toStdString()); });
        });
        return input;
    };
    m_txt_TempMin = newInput("txt_TempMin", "Minimaltemperatur", ChangeTempMin);
    m_txt_TempMax = newInput("txt_TempMax", "Maximaltemperatur", ChangeTempMax);
    row->addWidget(NewLabel({}, QStringLiteral("Min:"), group));
    row->addWidget(m_txt_TempMin);
    row->addWidget(NewLabel({}, QStringLiteral("Max:"), group));
    row->addWidget(m_txt_TempMax);
    return group;
}

TextInput* Fra_Einstellungen::NewStartTimeInput(const char* name, const char* accessibleName,
                                                int limit, int width,
                                                std::string StartParameters::*value) {
    auto* const input =
        new TextInput(QString::fromLatin1(name), QString::fromLatin1(accessibleName), limit, this);
    input->setFixedWidth(width);
    connect(input, &QLineEdit::textChanged, this, [this, input, value](const QString& text) {
        Edit(*input, [&](StartParameters& parameters) { parameters.*value = text.toStdString(); });
    });
    m_startTime.push_back({input, value});
    return input;
}

QWidget* Fra_Einstellungen::NewStartTime() {
    auto* const group = new GroupBox({}, QStringLiteral("Startzeit:"), this);
    group->SetCornerLabel(NewHoverInfo(
        QStringLiteral("Label4"),
        QStringLiteral("  Zeitpunkt, an dem das Uni gestartet hat, bzw du eingestiegen bist "),
        group));
    auto* const layout = new QVBoxLayout(group);
    layout->setContentsMargins(4, 2, 4, 3);
    layout->setSpacing(3);
    layout->addLayout(NewDateRow(group));
    layout->addLayout(NewClockRow(group));
    return group;
}

QLayout* Fra_Einstellungen::NewDateRow(QWidget* group) {
    using P = StartParameters;
    m_LBL_Weekday = NewLabel(QStringLiteral("LBL_Weekday"), {}, group);
    QLayout* const row = NewCenterRow(
        {m_LBL_Weekday,
         NewStartTimeInput("txt_UniStartZeitTag", "Tag", 2, kTwoDigits, &P::UniStartZeitTag),
         NewLabel({}, QStringLiteral("."), group),
         NewStartTimeInput("txt_UniStartZeitMonat", "Monat", 2, kTwoDigits, &P::UniStartZeitMonat),
         NewLabel({}, QStringLiteral("."), group),
         NewStartTimeInput("txt_UniStartZeitJahr", "Jahr", 4, kFourDigits, &P::UniStartZeitJahr)});
    // Hour and minute aren't in the list yet: they don't change the weekday.
    for (const DatePart& part : m_startTime) {
        connect(part.input, &QLineEdit::textChanged, this, &Fra_Einstellungen::RefreshWeekday);
    }
    return row;
}

QLayout* Fra_Einstellungen::NewClockRow(QWidget* group) {
    using P = StartParameters;
    return NewCenterRow({NewStartTimeInput("txt_UniStartZeitStunden", "Stunden", 2, kTwoDigits,
                                           &P::UniStartZeitStunden),
                         NewLabel({}, QStringLiteral(":"), group),
                         NewStartTimeInput("txt_UniStartZeitMinuten", "Minuten", 2, kTwoDigits,
                                           &P::UniStartZeitMinuten),
                         NewLabel({}, QStringLiteral("Uhr"), group)});
}

QWidget* Fra_Einstellungen::NewKlickPuffer() {
    auto* const group = new GroupBox({}, QStringLiteral("[Klick-]Puffer:"), this);
    QHBoxLayout* const row = NewRow(
        group, NewHoverInfo(QStringLiteral("Label6"),
                            QStringLiteral(
                                "  Zeit, die du dir selbst gibst, bis du wirklich geklickt hast. "),
                            group));
    m_HSC_KlickPuffer =
        NewSlider(QStringLiteral("HSC_KlickPuffer"), QStringLiteral("Klickpuffer in Sekunden"),
                  kMaxKlickPuffer, group);
    constexpr int kLargeStep = 10;
    m_HSC_KlickPuffer->setPageStep(kLargeStep);
    m_LBL_KlickPuffer = NewLabel(QStringLiteral("LBL_KlickPuffer"), {}, group);
    connect(m_HSC_KlickPuffer, &QSlider::valueChanged, this,
            &Fra_Einstellungen::HSC_KlickPuffer_Change);
    row->addWidget(m_HSC_KlickPuffer);
    row->addWidget(m_LBL_KlickPuffer);
    return group;
}

void Fra_Einstellungen::HSC_KlickPuffer_Change(int position) {
    m_LBL_KlickPuffer->setText(ToQString(KlickPufferText(position)));
    // `Refresh` moves the slider to what the plan already has: no edit.
    if (Parameters().KlickPuffer != position) {
        Edit(*m_HSC_KlickPuffer,
             [&](StartParameters& parameters) { parameters.KlickPuffer = position; });
    }
}

QWidget* Fra_Einstellungen::NewDescriptions() {
    auto* const group = new GroupBox({}, QStringLiteral("Beschreibungen:"), this);
    QHBoxLayout* const row = NewRow(
        group,
        NewHoverInfo(QStringLiteral("Label9"),
                     QStringLiteral("  Blendet die Namen der Gebäude/Forschungen/Raumschiffe ein "),
                     group));
    m_cmd_ShowDesc = NewButton(QStringLiteral("cmd_ShowDesc"), {}, group);
    connect(m_cmd_ShowDesc, &QPushButton::clicked, this, &Fra_Einstellungen::cmd_ShowDesc_Click);
    row->addWidget(m_cmd_ShowDesc);
    return group;
}

void Fra_Einstellungen::cmd_ShowDesc_Click() {
    m_document.SetShowDesc(!m_document.CurrentPlan().ShowDesc);
}

QWidget* Fra_Einstellungen::NewSpeedfaktor() {
    auto* const group = new GroupBox({}, QStringLiteral("Speedfaktor:"), this);
    QHBoxLayout* const row = NewRow(
        group, NewHoverInfo(QStringLiteral("Label15"),
                            QStringLiteral(
                                "  Gobaler Geschwindigkeits-Multiplikator( für Uni50: 2x Speed )"),
                            group));
    m_Chk_Speedfaktor = new QCheckBox(QStringLiteral("Speedfaktor x2 !"), group);
    m_Chk_Speedfaktor->setObjectName(QStringLiteral("Chk_Speedfaktor"));
    connect(m_Chk_Speedfaktor, &QCheckBox::clicked, this,
            &Fra_Einstellungen::Chk_Speedfaktor_Click);
    row->addWidget(m_Chk_Speedfaktor);
    return group;
}

void Fra_Einstellungen::Chk_Speedfaktor_Click(bool set) {
    Edit(*m_Chk_Speedfaktor, [&](StartParameters& parameters) { parameters.Speedfaktor_X2 = set; });
}

void Fra_Einstellungen::Refresh() {
    constexpr std::size_t kDateParts = 3;
    for (std::size_t i = 0; i < m_startTime.size(); ++i) {
        const bool changed = m_startTime[i].input->Assign(Parameters().*m_startTime[i].value);
        if (changed && i < kDateParts) {
            RefreshWeekday();
        }
    }
    ShowTemperatures();
    m_HSC_KlickPuffer->setValue(Parameters().KlickPuffer);
    m_LBL_KlickPuffer->setText(ToQString(KlickPufferText(Parameters().KlickPuffer)));
    m_Chk_Speedfaktor->setChecked(Parameters().Speedfaktor_X2);
    RefreshShowDesc();
}

// From the inputs, not the plan: while `Refresh` sets them one by one, the rest still shows the old
// date.
void Fra_Einstellungen::RefreshWeekday() {
    StartParameters shown;
    for (const DatePart& part : m_startTime) {
        shown.*part.value = part.input->Utf8();
    }
    Refresh(tarvelin::RefreshWeekday(shown));
}

void Fra_Einstellungen::Refresh(const WeekdayLabel& weekday) {
    m_LBL_Weekday->setText(ToQString(weekday.caption));
    m_LBL_Weekday->setToolTip(ToQString(weekday.hint));
}

void Fra_Einstellungen::ShowTemperatures() {
    m_txt_TempMin->Assign(Parameters().tempMin);
    m_txt_TempMax->Assign(Parameters().TempMax);
}

void Fra_Einstellungen::RefreshShowDesc() {
    // Capitals mark the current state.
    m_cmd_ShowDesc->setText(m_document.CurrentPlan().ShowDesc ? QStringLiteral("EIN/aus")
                                                              : QStringLiteral("ein/AUS"));
}

}  // namespace tarvelin
