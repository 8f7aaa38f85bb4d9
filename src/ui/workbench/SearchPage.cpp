// Turns the inputs into a search and shows what it reports.
#include "ui/workbench/SearchPage.h"

#include <QHBoxLayout>
#include <utility>

#include "search/FindSummary.h"
#include "simulation/RunTexts.h"
#include "ui/look/Icons.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/PageParts.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

QPushButton* NewSearchButton(const char* name, const char* text, QWidget* parent) {
    auto* const button = new QPushButton(QString::fromUtf8(text), parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

std::optional<RunTrace> RunOf(const Plan& plan, const PlanTask& task, const Solution& find) {
    const Plan found = WithOrders(plan, find.orders, task.pause);
    const auto conditions = ParseRunConditions(found);
    const auto* const parsed = std::get_if<RunConditions>(&conditions);
    return parsed == nullptr ? std::nullopt : std::optional(TraceRun(find.orders, *parsed));
}

}  // namespace

SearchPage::SearchPage(Document& document, const Environment& environment,
                       std::function<std::vector<std::size_t>()> chosen, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_task(NewInput<QComboBox>("Comb_Suchaufgabe", "Aufgabe der Suche", this)),
      m_goal(new GoalPicker(this)),
      m_options(new SearchOptions(document, std::move(chosen), environment.now, this)),
      m_searchButton(NewSearchButton("Cmd_Suchen", "&Suchen", this)),
      m_stopButton(NewSearchButton("Cmd_Anhalten", "Anhal&ten", this)),
      m_triesLabel(new TypeLabel({}, TypeSize::Caption, false, this)),
      m_progressBar(NewInput<QProgressBar>("Suchbalken", "Fortschritt der Suche", this)),
      m_plot(new ConvergencePlot(this)),
      m_stateLabel(NewLabel(QStringLiteral("LBL_Suche"), {}, this)),
      m_find(new FindPanel(this)) {
    setObjectName(QStringLiteral("Suchfeld"));
    m_task->addItems(
        {QStringLiteral("andere Reihenfolge"), QStringLiteral("schnellster Weg zu diesem Ziel")});
    m_task->setItemData(0, QStringLiteral("Dieselben Aufträge, umgestellt"), Qt::ToolTipRole);
    m_task->setItemData(1, QStringLiteral("Andere Minen und Anlagen, dasselbe Ziel"),
                        Qt::ToolTipRole);
    Arrange();
    ConnectSignals();
    EnableControls();
}

void SearchPage::Arrange() {
    constexpr int kSlim = 4;
    m_progressBar->setFixedHeight(kSlim);
    m_progressBar->setTextVisible(false);
    m_triesLabel->setForegroundRole(QPalette::PlaceholderText);
    m_triesLabel->setWordWrap(true);
    m_triesLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_triesLabel->setObjectName(QStringLiteral("LBL_Versuche"));
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(kControlGap);
    buttons->addWidget(m_searchButton);
    buttons->addWidget(m_stopButton);
    buttons->addWidget(m_triesLabel, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
    layout->setSpacing(kControlGap);
    layout->addWidget(m_task);
    layout->addWidget(m_goal);
    layout->addWidget(m_options);
    layout->addLayout(buttons);
    layout->addWidget(m_progressBar);
    layout->addWidget(m_plot);
    layout->addWidget(m_stateLabel);
    layout->addWidget(m_find);
    layout->addStretch(1);
    m_stateLabel->hide();
}

void SearchPage::ConnectSignals() {
    connect(m_task, &QComboBox::currentIndexChanged, this, &SearchPage::EnableControls);
    connect(m_searchButton, &QPushButton::clicked, this, &SearchPage::StartSearch);
    connect(m_stopButton, &QPushButton::clicked, this, &SearchPage::StopSearch);
    connect(m_find, &FindPanel::AcceptWanted, this, &SearchPage::AcceptFind);
    connect(m_find, &FindPanel::CompareWanted, this, &SearchPage::CompareFind);
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

void SearchPage::SetPictures(const PerItem<QPixmap>& pictures) {
    m_goal->SetPictures(pictures);
    m_find->SetPictures(pictures);
}

void SearchPage::FollowAppearance() {
    constexpr int kIcon = 16;
    m_searchButton->setIcon(ToolIcon(Icon::Search, ColorsFor(palette())));
    m_searchButton->setIconSize(QSize(kIcon, kIcon));
    m_goal->FollowAppearance();
    m_find->FollowAppearance();
}

void SearchPage::EnableControls() {
    m_goal->setVisible(HasGoal());
    m_searchButton->setEnabled(!m_running);
    m_stopButton->setEnabled(m_running);
    emit StateChanged();
}

void SearchPage::StartSearch() {
    SearchRequest request = m_options->Request();
    if (HasGoal()) {
        request.goal = m_goal->Text();
    }
    const auto task = MakePlanTask(m_document.CurrentPlan(), request);
    if (const auto* const refusal = std::get_if<SearchRefusal>(&task)) {
        emit Notice(refusal->text);
        return;
    }
    emit Notice("");
    m_searched = {.plan = m_document.CurrentPlan(), .task = std::get<PlanTask>(task), .best = {}};
    m_findTrace.reset();
    m_find->ShowNothing({});
    m_plot->Clear();
    m_stateLabel->clear();
    m_stateLabel->show();
    m_triesLabel->clear();
    m_progressBar->setValue(0);
    m_elapsed.start();
    m_running = true;
    EnableControls();
    const int id = ++m_id;
    m_search = std::make_unique<BackgroundSearch>(
        m_searched->task, m_options->Budget(),
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

void SearchPage::ShowTries(std::uint64_t tries, std::uint64_t total) {
    constexpr double kMillisecond = 1e-3;
    constexpr double kWhole = 100;
    m_progressBar->setValue(total == 0 ? 0
                                       : static_cast<int>(kWhole * static_cast<double>(tries) /
                                                          static_cast<double>(total)));
    m_triesLabel->setText(
        QStringLiteral("%1 Versuche in %2 s")
            .arg(ToQString(GroupedText(static_cast<double>(tries))),
                 ToQString(
                     DecimalText(static_cast<double>(m_elapsed.elapsed()) * kMillisecond, 1))));
}

void SearchPage::ShowProgress(const SearchProgress& progress) {
    ShowTries(progress.tries, progress.totalTries);
    m_plot->AddPoint(progress.tries, progress.bestDuration, progress.totalTries);
    m_stateLabel->setText(
        QStringLiteral("Bisher %1").arg(ToQString(TimeSpanText(progress.bestDuration))));
}

void SearchPage::ShowSearchResult(const SearchResult& result) {
    m_search.reset();
    m_running = false;
    m_searched->best = result.best;
    ShowTries(result.tries, result.totalTries);
    m_stateLabel->hide();
    if (!result.best) {
        m_find->ShowNothing(QStringLiteral("Es wurde keine Liste gefunden, die endet."));
    } else {
        m_plot->AddPoint(result.tries, result.best->score.duration, result.totalTries);
        const FindSummary summary = SummaryOf(m_searched->plan, m_searched->task, *result.best);
        m_find->ShowFind(summary);
        if (summary.DiffersFromPlan()) {
            m_findTrace = RunOf(m_searched->plan, m_searched->task, *result.best);
            emit Notice("Der Fund ist noch nicht im Plan.");
        }
    }
    EnableControls();
}

void SearchPage::CompareFind() {
    emit FindToCompare(*m_findTrace);
}

void SearchPage::ForgetFind() {
    m_searched.reset();
    m_findTrace.reset();
    m_find->ShowNothing({});
    EnableControls();
}

void SearchPage::AcceptFind() {
    const auto before = m_document.Trace();
    const Long duration = m_searched->best->score.duration;
    if (!m_document.Adopt(m_searched->best->orders, m_searched->task.pause,
                          SnapshotOf(m_searched->plan))) {
        return;
    }
    ForgetFind();
    const Long gain = before ? before->Duration().Seconds() - duration : 0;
    std::string text = "Fund übernommen";
    text += gain > 0 ? ": " + TimeSpanText(gain) + " schneller." : ".";
    if (before) {
        text += " Der Plan davor steht unter Vergleich als \"gemerkt\".";
        emit TakenOver(*before);
    }
    emit Notice(text);
}

}  // namespace tarvelin
