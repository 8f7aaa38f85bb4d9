// Layout of the page, its rule, and what the rule would change.
#include "ui/workbench/SleepPage.h"

#include <QHBoxLayout>
#include <QRadioButton>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "search/SearchTexts.h"
#include "simulation/RunTexts.h"
#include "simulation/StatusTexts.h"
#include "ui/look/TypeSizes.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/PageParts.h"

namespace tarvelin {

namespace {

/// As they stand in `SleepRule`, and in the sequence in which they are shown.
constexpr std::array<const char*, 7> kNightNames{"So auf Mo", "Mo auf Di", "Di auf Mi", "Mi auf Do",
                                                 "Do auf Fr", "Fr auf Sa", "Sa auf So"};
constexpr std::array<std::size_t, 7> kShown{1, 2, 3, 4, 5, 6, 0};
constexpr std::size_t kFirstShown = kShown.front();

constexpr int kMinutesPerHour = 60;

QTime ToTime(int minutes) {
    return {minutes / kMinutesPerHour, minutes % kMinutesPerHour};
}

int ToMinutes(const QTime& time) {
    return time.hour() * kMinutesPerHour + time.minute();
}

/// "Sa 05.12. 09:32:16".
std::string EndText(const RunTrace& trace) {
    return ShortDateTimeText(trace.conditions.WallClock(trace.Duration()));
}

std::string NightsText(const FilledSleepTable& filled) {
    const std::size_t all = filled.added + filled.merged + filled.present;
    std::string text = CountText(all, "Nacht", "Nächte") + ": ";
    if (filled.ChangesNothing()) {
        return all == 0 ? "Diese Regel hat keine Nacht." : text + "alle sind schon da.";
    }
    struct Part {
        std::size_t number;
        const char* one;
        const char* many;
    };
    const char* between = "";
    for (const Part& part : {Part{filled.present, "ist schon da", "sind schon da"},
                             Part{filled.added, "kommt dazu", "kommen dazu"},
                             Part{filled.merged, "wird länger", "werden länger"},
                             Part{filled.removed, "Zeile fällt weg", "Zeilen fallen weg"}}) {
        if (part.number > 0) {
            text += std::exchange(between, ", ") + CountText(part.number, part.one, part.many);
        }
    }
    return text + ".";
}

/// New rows stand at the end.
QString ChangeText(const FilledSleepTable& filled, std::size_t row) {
    if (std::ranges::count(filled.changedRows, row) == 0) {
        return {};
    }
    return row + filled.added >= filled.table.size() ? QStringLiteral("+ neu")
                                                     : QStringLiteral("länger");
}

}  // namespace

SleepPage::SleepPage(Document& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_allAlike(new QCheckBox(QStringLiteral("&Alle Nächte gleich"), this)),
      m_overlap(new QButtonGroup(this)),
      m_effect(NewLabel(QStringLiteral("LBL_Schlafwirkung"), {}, this)),
      m_enterButton(new MainButton(QStringLiteral("&Nächte eintragen"), this)),
      m_discardButton(new QPushButton(QStringLiteral("Ver&werfen"), this)),
      m_rows(new TableModel(
          {QStringLiteral("von"), QStringLiteral("bis"), QStringLiteral("Dauer"), QString()},
          {.rows = [this] { return m_proposal.filled.table.size(); },
           .text = [this](std::size_t row, int column) { return CellText(row, column); },
           .color =
               [this](std::size_t row, int /*column*/) {
                   const bool isNew = std::ranges::count(m_proposal.filled.changedRows, row) > 0;
                   return ColorsFor(palette())[isNew ? Color::Accent : Color::Text];
               }},
          this)),
      m_table(new ListView(QStringLiteral("LV_Naechte"), QStringLiteral("Schlafzeiten des Plans"),
                           {10, 10, 4, 4}, this)),
      m_rowStart(NewInput<QDateTimeEdit>("Zeit_Schlafbeginn", "Beginn der neuen Schlafzeit", this)),
      m_rowLength(NewInput<QTimeEdit>("Zeit_Schlafdauer", "Dauer der neuen Schlafzeit", this)),
      m_removeButton(new QPushButton(QStringLiteral("Zeile &löschen"), this)) {
    setObjectName(QStringLiteral("Schlaffeld"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
    layout->setSpacing(kControlGap);
    AddRule(*layout);
    AddOverlapChoice(*layout);
    AddEffect(*layout);
    AddTable(*layout);
    SetRule(SleepRule::EveryNight({}));
}

void SleepPage::AddRule(QVBoxLayout& layout) {
    layout.addWidget(
        new TypeLabel(QStringLiteral("Wann schläfst du?"), TypeSize::Heading, true, this));
    layout.addWidget(
        NewHint(QStringLiteral("Die Regel schreibt Schlafzeiten vom Start des Plans bis einen Tag "
                               "nach seinem Ende. Ein Schritt zurück nimmt alles zurück."),
                this));
    m_allAlike->setObjectName(QStringLiteral("Chk_AlleNaechte"));
    layout.addWidget(m_allAlike);
    connect(m_allAlike, &QCheckBox::toggled, this, &SleepPage::ShowRule);
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(kControlGap);
    grid->setVerticalSpacing(0);
    int column = 0;
    for (const char* const caption : {"Nacht", "von", "bis", "18 – 12 Uhr"}) {
        auto* const label = NewHint(QString::fromUtf8(caption), this);
        label->setWordWrap(false);
        grid->addWidget(label, 0, column++);
    }
    for (const std::size_t weekday : kShown) {
        AddNight(*grid, static_cast<int>(weekday));
    }
    grid->setColumnStretch(3, 1);
    layout.addLayout(grid);
}

void SleepPage::AddNight(QGridLayout& grid, int weekday) {
    const auto index = static_cast<std::size_t>(weekday);
    const QString night = QString::fromUtf8(kNightNames[index]);
    NightInputs& inputs = m_nights[index];
    inputs.name = new QLabel(night, this);
    inputs.bar = new NightBar(this);
    const auto newTime = [&](const char* name, const QString& what) {
        auto* const input = new QTimeEdit(this);
        input->setObjectName(QString::fromLatin1(name) + QString::number(weekday));
        input->setAccessibleName(night + what);
        input->setDisplayFormat(QStringLiteral("HH:mm"));
        connect(input, &QTimeEdit::timeChanged, this, &SleepPage::ShowRule);
        return input;
    };
    inputs.from = newTime("Zeit_Von_", QStringLiteral(", von"));
    inputs.to = newTime("Zeit_Bis_", QStringLiteral(", bis"));
    const int row = grid.rowCount();
    grid.addWidget(inputs.name, row, 0);
    grid.addWidget(inputs.from, row, 1);
    grid.addWidget(inputs.to, row, 2);
    grid.addWidget(inputs.bar, row, 3);
}

void SleepPage::AddOverlapChoice(QVBoxLayout& layout) {
    layout.addWidget(NewSection(QStringLiteral("Nächte, die schon da sind"), this));
    auto* const row = new QHBoxLayout;
    row->setSpacing(kSectionGap);
    for (const auto& [choice, name, text, hint] :
         {std::tuple(AtOverlap::KeepRows, "Opt_Behalten", "&behalten",
                     "Was schon eingetragen ist, bleibt; die Nacht der Regel fällt dort weg"),
          std::tuple(AtOverlap::Merge, "Opt_Zusammenlegen", "&zusammenlegen",
                     "Aus Eintrag und Nacht wird ein Eintrag über beide"),
          std::tuple(AtOverlap::ReplaceRows, "Opt_Ersetzen", "&ersetzen",
                     "Einträge, die in eine Nacht der Regel ragen, fallen weg")}) {
        auto* const button = new QRadioButton(QString::fromUtf8(text), this);
        button->setObjectName(QString::fromLatin1(name));
        button->setToolTip(QString::fromUtf8(hint));
        m_overlap->addButton(button, static_cast<int>(choice));
        row->addWidget(button);
    }
    row->addStretch(1);
    layout.addLayout(row);
    m_overlap->button(static_cast<int>(AtOverlap::KeepRows))->setChecked(true);
    connect(m_overlap, &QButtonGroup::idToggled, this, [this] { ShowEffect(); });
}

void SleepPage::AddEffect(QVBoxLayout& layout) {
    constexpr int kLines = 2;
    m_effect->setFrameStyle(QFrame::StyledPanel);
    m_effect->setAutoFillBackground(true);
    m_effect->setBackgroundRole(QPalette::Base);
    m_effect->setTextFormat(Qt::RichText);
    m_effect->setMargin(4);
    m_effect->setWordWrap(true);
    m_effect->setMinimumHeight(kLines * fontMetrics().lineSpacing() + kSectionGap);
    layout.addWidget(m_effect);
    m_enterButton->setObjectName(QStringLiteral("Cmd_NaechteEintragen"));
    m_discardButton->setObjectName(QStringLiteral("Cmd_NaechteVerwerfen"));
    m_discardButton->setToolTip(QStringLiteral("Die Regel wird wieder die der Nächte im Plan"));
    connect(m_enterButton, &QPushButton::clicked, this, &SleepPage::EnterNights);
    connect(m_discardButton, &QPushButton::clicked, this, [this] {
        SetRule(
            RuleOf(m_document.CurrentPlan().LV_Schlafzeiten).value_or(SleepRule::EveryNight({})));
    });
    auto* const row = new QHBoxLayout;
    row->setSpacing(kControlGap);
    row->addWidget(m_enterButton);
    row->addWidget(m_discardButton);
    row->addStretch(1);
    layout.addLayout(row);
}

void SleepPage::AddTable(QVBoxLayout& layout) {
    layout.addWidget(NewSection(QStringLiteral("Schlafzeiten des Plans"), this));
    m_table->setModel(m_rows);
    m_table->setTextElideMode(Qt::ElideRight);
    m_table->setAlternatingRowColors(true);
    m_table->SetRowHeight(kTableRow);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    constexpr int kRows = 5;
    m_table->setMinimumHeight((kRows + 1) * kTableRow);
    layout.addWidget(m_table, 1);
    AddRowInputs(layout);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_removeButton->setEnabled(m_table->selectionModel()->hasSelection()); });
}

void SleepPage::AddRowInputs(QVBoxLayout& layout) {
    m_rowStart->setDisplayFormat(QStringLiteral("dd.MM.yyyy HH:mm"));
    m_rowStart->setCalendarPopup(true);
    m_rowLength->setDisplayFormat(QStringLiteral("H:mm 'h'"));
    m_rowLength->setTime(QTime(1, 0));
    auto* const addButton = new QPushButton(QStringLiteral("Zeile &hinzufügen"), this);
    addButton->setObjectName(QStringLiteral("Cmd_SchlafzeileNeu"));
    m_removeButton->setObjectName(QStringLiteral("Cmd_SchlafzeileWeg"));
    m_removeButton->setEnabled(false);
    connect(addButton, &QPushButton::clicked, this, &SleepPage::AddRow);
    connect(m_removeButton, &QPushButton::clicked, this, &SleepPage::RemoveRows);
    auto* const inputs = new QHBoxLayout;
    inputs->setSpacing(kControlGap);
    inputs->addWidget(m_rowStart, 1);
    inputs->addWidget(m_rowLength);
    layout.addLayout(inputs);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(kControlGap);
    buttons->addWidget(addButton);
    buttons->addWidget(m_removeButton);
    buttons->addStretch(1);
    layout.addLayout(buttons);
}

SleepRule SleepPage::Rule() const {
    SleepRule rule;
    for (std::size_t i = 0; i < m_nights.size(); ++i) {
        const NightInputs& inputs = m_nights[m_allAlike->isChecked() ? kFirstShown : i];
        const NightTimes times{.from = ToMinutes(inputs.from->time()),
                               .to = ToMinutes(inputs.to->time())};
        rule.nights[i] = times.from == times.to ? std::nullopt : std::optional(times);
    }
    return rule;
}

void SleepPage::SetRule(const SleepRule& rule) {
    {
        const QSignalBlocker quiet(m_allAlike);
        m_allAlike->setChecked(std::ranges::all_of(
            rule.nights, [&](const auto& night) { return night == rule.nights.front(); }));
    }
    for (std::size_t i = 0; i < m_nights.size(); ++i) {
        const QSignalBlocker quietFrom(m_nights[i].from);
        const QSignalBlocker quietTo(m_nights[i].to);
        const NightTimes times = rule.nights[i].value_or(NightTimes{.from = 0, .to = 0});
        m_nights[i].from->setTime(ToTime(times.from));
        m_nights[i].to->setTime(ToTime(times.to));
    }
    ShowRule();
}

void SleepPage::TakeRuleFromPlan() {
    if (const auto rule = RuleOf(m_document.CurrentPlan().LV_Schlafzeiten)) {
        SetRule(*rule);
    }
}

// Where all are alike the others follow the first.
void SleepPage::ShowRule() {
    const SleepRule rule = Rule();
    for (std::size_t i = 0; i < m_nights.size(); ++i) {
        const NightInputs& inputs = m_nights[i];
        const bool follows = m_allAlike->isChecked() && i != kFirstShown;
        if (follows) {
            const QSignalBlocker quietFrom(inputs.from);
            const QSignalBlocker quietTo(inputs.to);
            inputs.from->setTime(m_nights[kFirstShown].from->time());
            inputs.to->setTime(m_nights[kFirstShown].to->time());
        }
        inputs.from->setEnabled(!follows);
        inputs.to->setEnabled(!follows);
        inputs.bar->ShowNight(rule.nights[i]);
        QFont font = this->font();
        font.setBold(rule.nights[i] != rule.nights[kFirstShown]);
        inputs.name->setFont(font);
    }
    ShowEffect();
}

void SleepPage::ShowEffect() {
    const Plan& plan = m_document.CurrentPlan();
    m_proposal = ProposeNights(plan, Rule(), Overlap());
    QString text = ToQString(NightsText(m_proposal.filled));
    const auto& now = m_document.Trace();
    if (now && m_proposal.trace && !m_proposal.filled.ChangesNothing()) {
        const Long change = m_proposal.trace->Duration() - now->Duration();
        text += QStringLiteral("<br>Ende <b>%1</b> statt %2, %3")
                    .arg(ToQString(EndText(*m_proposal.trace)), ToQString(EndText(*now)),
                         ToQString(SignedTimeSpanText(change)));
    }
    m_effect->setText(text);
    m_enterButton->setEnabled(!m_proposal.filled.ChangesNothing());
    m_rows->Refresh();
    emit ProposalChanged();
}

void SleepPage::Refresh() {
    if (const auto start = ReadUniStartZeit(m_document.CurrentPlan().parameters)) {
        m_rowStart->setMinimumDate(ToQDateTime(*start).date());
    }
    ShowEffect();
}

void SleepPage::EnterNights() {
    m_document.SetSleepTable(m_proposal.filled.table);
}

AtOverlap SleepPage::Overlap() const {
    return static_cast<AtOverlap>(m_overlap->checkedId());
}

QString SleepPage::CellText(std::size_t row, int column) const {
    enum { kFrom, kTo, kLength };
    const SleepRow& texts = m_proposal.filled.table[row];
    const auto window = ParseSleepRow(texts);
    const auto moment = [&](const std::string& text, DateTime time) {
        constexpr int kSeconds = 3;
        return window ? ToQString(ShortDateTimeText(time)).chopped(kSeconds) : ToQString(text);
    };
    switch (column) {
        case kFrom:
            return moment(texts.Startzeit, window ? window->Startzeit() : DateTime());
        case kTo:
            return moment(texts.Endzeit, window ? window->Endzeit() : DateTime());
        case kLength:
            return window
                       ? ToQString(TimeSpanText(window->Endzeit() - window->Startzeit())).chopped(3)
                       : QStringLiteral("?");
        default:
            return ChangeText(m_proposal.filled, row);
    }
}

void SleepPage::AddRow() {
    const QDateTime start = m_rowStart->dateTime();
    const auto text = [](const auto& time, const char* format) {
        return time.toString(QString::fromLatin1(format)).toStdString();
    };
    SleepTable table = m_document.CurrentPlan().LV_Schlafzeiten;
    const auto refusal = AddSleepRow({.date = text(start, "dd.MM.yyyy"),
                                      .startHours = text(start, "HH"),
                                      .startMinutes = text(start, "mm"),
                                      .durationHours = text(m_rowLength->time(), "HH"),
                                      .durationMinutes = text(m_rowLength->time(), "mm")},
                                     table);
    if (refusal) {
        emit Notice(refusal->text);
        return;
    }
    m_document.SetSleepTable(std::move(table));
}

// Rows of the proposal that aren't in the plan yet can't be removed from it.
void SleepPage::RemoveRows() {
    SleepTable table = m_document.CurrentPlan().LV_Schlafzeiten;
    for (const QModelIndex& index : m_table->selectionModel()->selectedRows()) {
        std::erase(table, m_proposal.filled.table[static_cast<std::size_t>(index.row())]);
    }
    if (table != m_document.CurrentPlan().LV_Schlafzeiten) {
        m_document.SetSleepTable(std::move(table));
    }
}

}  // namespace tarvelin
