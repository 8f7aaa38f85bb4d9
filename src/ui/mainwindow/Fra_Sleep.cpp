// Layout of the panel and its handlers.
#include "ui/mainwindow/Fra_Sleep.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <algorithm>
#include <array>
#include <utility>

namespace tarvelin {

namespace {

TableModel::Provider ProviderOf(const SleepTable& table) {
    return {.rows = [&table] { return table.size(); },
            .text =
                [&table](std::size_t row, int column) {
                    const SleepRow& tableRow = table[row];
                    return ToQString(column == 0 ? tableRow.Startzeit : tableRow.Endzeit);
                }};
}

struct TimeInput {
    const char* name;
    const char* accessibleName;
    std::string SleepInput::*value;
};

constexpr std::array<TimeInput, 4> kTimeInputs{{
    {"txt_SchlafStartStunden", "Startzeit, Stunden", &SleepInput::startHours},
    {"txt_SchlafStartMinuten", "Startzeit, Minuten", &SleepInput::startMinutes},
    {"txt_SchlafdauerStunden", "Dauer, Stunden", &SleepInput::durationHours},
    {"txt_SchlafdauerMinuten", "Dauer, Minuten", &SleepInput::durationMinutes},
}};

QDate ToDate(DateTime time) {
    return QDate::fromString(ToQString(DateText(time)), QStringLiteral("dd.MM.yyyy"));
}

QCalendarWidget* NewCalendar(const QDate& day, QWidget* parent) {
    auto* const calendar = new QCalendarWidget(parent);
    calendar->setObjectName(QStringLiteral("SchlafKalender"));
    calendar->setAccessibleName(QStringLiteral("Tag der Startzeit"));
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    // Typed digits would change the date.
    calendar->setDateEditEnabled(false);
    calendar->setSelectedDate(day);
    for (const auto& [part, accessibleName] : {std::pair("qt_calendar_prevmonth", "Voriger Monat"),
                                               std::pair("qt_calendar_nextmonth", "Nächster Monat"),
                                               std::pair("qt_calendar_yearedit", "Jahr")}) {
        if (auto* const button = calendar->findChild<QWidget*>(QString::fromLatin1(part))) {
            button->setAccessibleName(QString::fromUtf8(accessibleName));
        }
    }
    return calendar;
}

}  // namespace

Fra_Sleep::Fra_Sleep(Document& document, const Environment& environment, QWidget* parent)
    : Panel(QStringLiteral("Fra_Sleep"), QStringLiteral("Schlaf/Pausen-zeiten:"),
            {160, 2, 6855, 3615}, parent),
      m_document(document),
      m_environment(environment),
      m_LV_Schlafzeiten(new ListView(QStringLiteral("LV_Schlafzeiten"),
                                     QStringLiteral("Schlafzeiten"), {2646, 2646}, this)),
      m_Chk_Schlafzeitenwecker(new QCheckBox(QStringLiteral("Wecker-Funktion"), this)),
      m_model(new TableModel({QStringLiteral("Startzeit"), QStringLiteral("Endzeit")},
                             ProviderOf(Table()), this)),
      m_SchlafKalender(NewCalendar(ToDate(environment.now()), this)),
      m_LBL_Schlafendzeit(NewLabel(QStringLiteral("LBL_Schlafendzeit"), {}, this)) {
    m_LV_Schlafzeiten->setModel(m_model);
    m_Chk_Schlafzeitenwecker->setObjectName(QStringLiteral("Chk_Schlafzeitenwecker"));
    m_Chk_Schlafzeitenwecker->setToolTip(
        QStringLiteral(" Eine Minute vor jeder Endzeit ertönt ein Alarmton "));
    connect(m_SchlafKalender, &QCalendarWidget::selectionChanged, this,
            &Fra_Sleep::RefreshSchlafEnde);
    connect(m_SchlafKalender, &QCalendarWidget::currentPageChanged, this, &Fra_Sleep::TurnPage);
    AddInputs();
    Arrange();
    SetFirstControl(m_SchlafKalender);
    RefreshSchlafEnde();
    hide();
}

void Fra_Sleep::AddInputs() {
    for (const TimeInput& time : kTimeInputs) {
        auto* const input = new TextInput(QString::fromLatin1(time.name),
                                          QString::fromLatin1(time.accessibleName), 2, this);
        constexpr int kWidth = 22;
        input->setFixedWidth(kWidth);
        input->Assign(SleepInput().*time.value);
        connect(input, &QLineEdit::textChanged, this, &Fra_Sleep::RefreshSchlafEnde);
        m_times.push_back(input);
    }
}

QPushButton* Fra_Sleep::NewTableButton(const char* name, const char* text,
                                       void (Fra_Sleep::*handler)()) {
    QPushButton* const button =
        NewButton(QString::fromLatin1(name), QString::fromLatin1(text), this);
    connect(button, &QPushButton::clicked, this, handler);
    return button;
}

QLayout* Fra_Sleep::NewTimes(QPushButton* add) {
    auto* const times = new QGridLayout;
    times->setSpacing(3);
    for (std::size_t i = 0; i < m_times.size(); i += 2) {
        const auto row = static_cast<int>(i / 2);
        times->addWidget(
            NewLabel({}, i == 0 ? QStringLiteral("Startzeit:") : QStringLiteral("Dauer:"), this),
            row, 0);
        times->addWidget(m_times[i], row, 1);
        times->addWidget(NewLabel({}, QStringLiteral(":"), this), row, 2);
        times->addWidget(m_times[i + 1], row, 3);
    }
    times->addWidget(NewLabel({}, QStringLiteral("Endzeit:"), this), 2, 0);
    times->addWidget(m_LBL_Schlafendzeit, 2, 1, 1, 4);
    times->addWidget(add, 0, 4, 2, 1);
    times->setColumnStretch(4, 1);
    return times;
}

void Fra_Sleep::Arrange() {
    QPushButton* const add =
        NewTableButton("Cmd_AddSchlafzeit", "Add", &Fra_Sleep::Cmd_AddSchlafzeit_Click);
    QPushButton* const remove =
        NewTableButton("Cmd_RemoveSchlafzeit", "Delete", &Fra_Sleep::Cmd_RemoveSchlafzeit_Click);
    QPushButton* const clear =
        NewTableButton("Cmd_ClearSchlafzeiten", "Clear", &Fra_Sleep::Cmd_ClearSchlafzeiten_Click);
    QPushButton* const close = NewHideButton(QStringLiteral("Cmd_HideSleep"));
    connect(close, &QPushButton::clicked, this, &Fra_Sleep::Cmd_HideSleep_Click);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(3);
    buttons->addWidget(remove);
    buttons->addWidget(clear);
    buttons->addWidget(close);

    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(4, 2, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(m_SchlafKalender, 0, 0);
    layout->addLayout(NewTimes(add), 1, 0, 2, 1);
    layout->addWidget(m_LV_Schlafzeiten, 0, 1);
    layout->addWidget(m_Chk_Schlafzeitenwecker, 1, 1);
    layout->addLayout(buttons, 2, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    ChainTabOrder({m_SchlafKalender, m_times[0], m_times[1], m_times[2], m_times[3], add,
                   m_LV_Schlafzeiten, m_Chk_Schlafzeitenwecker, remove, clear, close});
}

void Fra_Sleep::Refresh() {
    m_model->Refresh();
    // Otherwise another row would be selected in the place of a removed one.
    m_LV_Schlafzeiten->setCurrentIndex({});
}

SleepInput Fra_Sleep::ReadInput() const {
    SleepInput input;
    input.date =
        m_SchlafKalender->selectedDate().toString(QStringLiteral("dd.MM.yyyy")).toStdString();
    for (std::size_t i = 0; i < kTimeInputs.size(); ++i) {
        input.*kTimeInputs[i].value = m_times[i]->Utf8();
    }
    return input;
}

// Selects the same day of the month shown, so that the date that counts is in sight.
void Fra_Sleep::TurnPage(int year, int month) {
    const QDate day = m_SchlafKalender->selectedDate();
    if (day.year() != year || day.month() != month) {
        const int last = QDate(year, month, 1).daysInMonth();
        m_SchlafKalender->setSelectedDate(QDate(year, month, std::min(day.day(), last)));
    }
}

void Fra_Sleep::RefreshSchlafEnde() {
    m_LBL_Schlafendzeit->setText(ToQString(SleepEndText(ReadInput())));
}

void Fra_Sleep::Cmd_AddSchlafzeit_Click() {
    SleepTable table = Table();
    if (const auto message = AddSleepRow(ReadInput(), table)) {
        m_environment.dialogs.Show(*message);
        return;
    }
    m_document.SetSleepTable(std::move(table));
    const QModelIndex added = m_model->index(m_model->rowCount() - 1, 0);
    m_LV_Schlafzeiten->scrollTo(added);
    m_LV_Schlafzeiten->setCurrentIndex(added);
}

void Fra_Sleep::Cmd_RemoveSchlafzeit_Click() {
    const QModelIndexList chosen = m_LV_Schlafzeiten->selectionModel()->selectedRows();
    if (!chosen.isEmpty()) {
        SleepTable table = Table();
        table.erase(table.begin() + chosen.first().row());
        m_document.SetSleepTable(std::move(table));
    }
}

void Fra_Sleep::Cmd_ClearSchlafzeiten_Click() {
    if (m_environment.dialogs.Ask({.text = "Wirklich alle löschen ?", .title = ""})) {
        m_document.SetSleepTable({});
    }
}

void Fra_Sleep::Cmd_HideSleep_Click() {
    hide();
}

}  // namespace tarvelin
