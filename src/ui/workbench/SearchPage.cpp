// Turns the inputs into a search and shows what it reports.
#include "ui/workbench/SearchPage.h"

#include <QCompleter>
#include <QHBoxLayout>
#include <QStandardItemModel>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>
#include <utility>

#include "search/GoalText.h"
#include "search/SearchTexts.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

template <class T>
T* NewInput(const char* name, const char* accessibleName, QWidget* parent) {
    auto* const input = new T(parent);
    input->setObjectName(QString::fromLatin1(name));
    input->setAccessibleName(QString::fromUtf8(accessibleName));
    return input;
}

QCheckBox* NewCheckBox(const char* name, const char* text, QWidget* parent) {
    auto* const checkBox = new QCheckBox(QString::fromUtf8(text), parent);
    checkBox->setObjectName(QString::fromLatin1(name));
    return checkBox;
}

QPushButton* NewSearchButton(const char* name, const char* text, QWidget* parent) {
    auto* const button = new QPushButton(QString::fromUtf8(text), parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

/// How much of a search is done, from 0 to 1.
double ShareDone(std::uint64_t tries, std::uint64_t total) {
    return total == 0 ? 1 : static_cast<double>(tries) / static_cast<double>(total);
}

int ToPercent(double share) {
    constexpr double kWhole = 100;
    return static_cast<int>(kWhole * share);
}

/// Offers the names of items while a goal is typed.
void CompleteWhileTyped(QLineEdit* goal) {
    constexpr int kWholeText = Qt::UserRole;
    auto* const names = new QStandardItemModel(goal);
    auto* const completer = new QCompleter(names, goal);
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer->setCompletionRole(kWholeText);
    goal->setCompleter(completer);
    QObject::connect(goal, &QLineEdit::textEdited, names, [names](const QString& text) {
        const std::string typed = text.toStdString();
        const GoalCompletions completions = CompleteGoal(typed);
        names->clear();
        for (const std::string& name : completions.names) {
            auto* const row = new QStandardItem(ToQString(name));
            row->setData(ToQString(typed.substr(0, completions.begin) + name), kWholeText);
            names->appendRow(row);
        }
    });
}

}  // namespace

SearchPage::SearchPage(Document& document, const Environment& environment,
                       std::function<std::vector<std::size_t>()> chosen, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_environment(environment),
      m_chosen(std::move(chosen)),
      m_task(NewInput<QComboBox>("Comb_Suchaufgabe", "Aufgabe der Suche", this)),
      m_goal(NewInput<QLineEdit>("txt_Suchziel", "Ziel der Suche", this)),
      m_pinned(NewCheckBox("Chk_Fest", "Gewählte Zeilen bleiben &fest", this)),
      m_free(NewCheckBox("Chk_Frei", "Produktionszeilen wandern &mit", this)),
      m_fromNow(NewCheckBox("Chk_AbJetzt", "Ab &jetzt: was begonnen hat, bleibt", this)),
      m_sittings(NewCheckBox("Chk_Sitzungen", "Weniger Sit&zungen, länger um", this)),
      m_slack(NewInput<QDoubleSpinBox>("Spin_Nachlass", "Prozent länger", this)),
      m_tries(NewInput<QSpinBox>("Spin_Versuche", "Zahl der Versuche", this)),
      m_searchButton(NewSearchButton("Cmd_Suchen", "&Suchen", this)),
      m_stopButton(NewSearchButton("Cmd_Anhalten", "Anhal&ten", this)),
      m_acceptButton(NewSearchButton("Cmd_Uebernehmen", "Über&nehmen", this)),
      m_progressBar(NewInput<QProgressBar>("Suchbalken", "Fortschritt der Suche", this)),
      m_plot(new ConvergencePlot(this)),
      m_reportLabel(NewLabel(QStringLiteral("LBL_Suche"), {}, this)) {
    setObjectName(QStringLiteral("Suchfeld"));
    m_reportLabel->setWordWrap(true);
    m_reportLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_reportLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const form = new QFormLayout;
    AddInputs(*form);
    auto* const buttons = new QHBoxLayout;
    for (QPushButton* const button : {m_searchButton, m_stopButton, m_acceptButton}) {
        buttons->addWidget(button);
    }
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(buttons);
    layout->addWidget(m_progressBar);
    layout->addWidget(m_plot);
    layout->addWidget(m_reportLabel, 1);
    ConnectSignals();
    EnableControls();
}

void SearchPage::AddInputs(QFormLayout& form) {
    m_task->addItems(
        {QStringLiteral("andere Reihenfolge"), QStringLiteral("schnellster Weg zum Ziel")});
    m_goal->setText(QStringLiteral("plan"));
    m_goal->setToolTip(
        QStringLiteral("plan: Forschung, Schiffe und Verteidigung des Plans; sonst etwa: werft 2, "
                       "kl. transporter"));
    CompleteWhileTyped(m_goal);
    constexpr double kMax = 100;
    constexpr double kUsual = 0.5;
    m_slack->setRange(0, kMax);
    m_slack->setSingleStep(kUsual);
    m_slack->setValue(kUsual);
    m_slack->setSuffix(QStringLiteral(" %"));
    m_tries->setRange(1, std::numeric_limits<int>::max());
    m_tries->setSingleStep(static_cast<int>(SearchBudget::kDefaultTries));
    m_tries->setValue(static_cast<int>(SearchBudget::kDefaultTries));
    m_tries->setGroupSeparatorShown(true);
    auto* const sittings = new QHBoxLayout;
    sittings->addWidget(m_sittings);
    sittings->addWidget(m_slack);
    form.setVerticalSpacing(2);
    form.addRow(m_task);
    form.addRow(QStringLiteral("Ziel:"), m_goal);
    form.addRow(m_pinned);
    form.addRow(m_free);
    form.addRow(m_fromNow);
    form.addRow(sittings);
    form.addRow(QStringLiteral("Versuche:"), m_tries);
}

void SearchPage::ConnectSignals() {
    connect(m_task, &QComboBox::currentIndexChanged, this, &SearchPage::EnableControls);
    connect(m_sittings, &QCheckBox::toggled, this, &SearchPage::EnableControls);
    connect(m_searchButton, &QPushButton::clicked, this, &SearchPage::StartSearch);
    connect(m_stopButton, &QPushButton::clicked, this, &SearchPage::StopSearch);
    connect(m_acceptButton, &QPushButton::clicked, this, &SearchPage::AcceptResult);
    // Emitted on the search's thread. Reports of an earlier search are dropped.
    connect(
        this, &SearchPage::ProgressReceived, this,
        [this](int id, const SearchProgress& progress) {
            if (id == m_id) {
                ShowProgress(progress);
            }
        },
        Qt::QueuedConnection);
    connect(
        this, &SearchPage::ResultReceived, this,
        [this](int id, const SearchResult& result) {
            if (id == m_id) {
                ShowSearchResult(result);
            }
        },
        Qt::QueuedConnection);
}

void SearchPage::EnableControls() {
    m_goal->setEnabled(m_task->currentIndex() == 1);
    m_slack->setEnabled(m_sittings->isChecked());
    m_searchButton->setEnabled(!m_running);
    m_stopButton->setEnabled(m_running);
    m_acceptButton->setEnabled(HasFind());
    emit StateChanged();
}

SearchRequest SearchPage::MakeRequest() const {
    SearchRequest request{.moveProduction = m_free->isChecked()};
    if (m_task->currentIndex() == 1) {
        request.goal = m_goal->text().trimmed().toStdString();
    }
    if (m_pinned->isChecked()) {
        for (const std::size_t row : m_chosen()) {
            request.pinnedRanges.emplace_back(row + 1, row + 1);
        }
    }
    if (m_fromNow->isChecked()) {
        request.notBefore = m_environment.now();
    }
    return request;
}

SearchBudget SearchPage::MakeBudget() const {
    // Leave one core for the windows.
    const unsigned cores = std::thread::hardware_concurrency();
    return {.tries = static_cast<std::uint64_t>(m_tries->value()),
            .threads = std::max(2U, cores) - 1,
            .slackPercent = m_sittings->isChecked() ? m_slack->value() : 0};
}

void SearchPage::StartSearch() {
    const auto task = MakePlanTask(m_document.CurrentPlan(), MakeRequest());
    if (const auto* const refusal = std::get_if<SearchRefusal>(&task)) {
        emit Notice(refusal->text);
        return;
    }
    emit Notice("");
    m_searched = {.plan = m_document.CurrentPlan(), .task = std::get<PlanTask>(task), .best = {}};
    m_plot->Clear();
    m_progressBar->setValue(0);
    m_reportLabel->clear();
    m_running = true;
    EnableControls();
    const int id = ++m_id;
    m_search = std::make_unique<BackgroundSearch>(
        m_searched->task, MakeBudget(),
        BackgroundSearch::Listener{
            .onProgress =
                [this, id](const SearchProgress& progress) { emit ProgressReceived(id, progress); },
            .onDone = [this, id](const SearchResult& result) { emit ResultReceived(id, result); }});
}

void SearchPage::StopSearch() {
    if (m_search) {
        m_search->Stop();
    }
}

void SearchPage::ShowProgress(const SearchProgress& progress) {
    const double share = ShareDone(progress.tries, progress.totalTries);
    m_progressBar->setValue(ToPercent(share));
    m_plot->AddPoint(share, progress.bestDuration);
    m_reportLabel->setText(ToQString(ProgressSummary(progress)));
}

void SearchPage::ShowSearchResult(const SearchResult& result) {
    m_search.reset();
    m_running = false;
    m_searched->best = result.best;
    m_progressBar->setValue(ToPercent(ShareDone(result.tries, result.totalTries)));
    m_reportLabel->setText(ToQString(ResultSummary(m_searched->plan, m_searched->task, result)));
    EnableControls();
}

void SearchPage::AcceptResult() {
    if (m_document.Adopt(m_searched->best->orders, m_searched->task.pause,
                         SnapshotOf(m_searched->plan))) {
        m_searched.reset();
        EnableControls();
    }
}

}  // namespace tarvelin
