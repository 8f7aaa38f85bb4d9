// Layout of the workbench, and what its labels show.
#include "ui/workbench/WorkbenchSurface.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "simulation/StatusTexts.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/PageParts.h"

namespace tarvelin {

namespace {

QString FindName() {
    return QStringLiteral("Fund");
}

}  // namespace

WorkbenchSurface::WorkbenchSurface(Document& document, const Environment& environment,
                                   QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_strip(new NextOrderStrip(this)),
      m_list(new OrderListView(document, this)),
      m_pages(new QTabWidget(this)),
      m_palette(new ItemPalette(this)),
      m_searchPage(new SearchPage(
          document, environment, [this] { return m_list->ChosenRows(); }, this)),
      m_comparisonPage(new ComparisonPage(document, environment, this)),
      m_sleepPage(new SleepPage(document, this)),
      m_planetPage(new PlanetPage(document, this)),
      m_timeline(new TimelineView(this)),
      m_startPage(new StartPage(document, environment.programFolder / "openings", this)),
      m_stack(new QStackedWidget(this)) {
    Arrange();
    ConnectSignals();
}

QWidget* WorkbenchSurface::NewPages() {
    m_pages->setObjectName(QStringLiteral("Felder"));
    for (const auto& [page, caption] :
         {std::pair<QWidget*, QString>(m_palette, QStringLiteral("&Einfügen")),
          std::pair<QWidget*, QString>(m_searchPage, QStringLiteral("Su&che")),
          std::pair<QWidget*, QString>(m_comparisonPage, QStringLiteral("Ver&gleich")),
          std::pair<QWidget*, QString>(m_sleepPage, QStringLiteral("Sch&laf")),
          std::pair<QWidget*, QString>(m_planetPage, QStringLiteral("&Planet"))}) {
        // A small screen has no room for the whole page.
        auto* const scrollArea = new QScrollArea(this);
        scrollArea->setWidget(page);
        scrollArea->setWidgetResizable(true);
        scrollArea->setFrameShape(QFrame::NoFrame);
        scrollArea->setFocusPolicy(Qt::NoFocus);
        m_pages->addTab(scrollArea, caption);
        m_scrollAreas.push_back(scrollArea);
    }
    return m_pages;
}

void WorkbenchSurface::Arrange() {
    auto* const splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(m_list);
    splitter->addWidget(m_timeline);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(5);
    // What both need at the least window; more height is shared.
    constexpr int kList = 250;
    splitter->setSizes({kList, m_timeline->sizeHint().height()});
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 1);

    m_stack->addWidget(splitter);
    m_stack->addWidget(m_startPage);

    auto* const left = new QVBoxLayout;
    left->setSpacing(0);
    left->addWidget(m_strip);
    left->addWidget(m_stack, 1);

    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(left, 1);
    layout->addWidget(NewPages());
}

void WorkbenchSurface::ConnectSignals() {
    connect(m_list, &OrderListView::ChoiceChanged, this, &WorkbenchSurface::ShowChoice);
    connect(m_timeline, &TimelineView::CursorMoved, this, &WorkbenchSurface::DescribeMoment);
    connect(m_timeline, &TimelineView::RowChosen, this,
            [this](std::size_t row) { m_list->Choose({row}); });
    connect(m_searchPage, &SearchPage::Notice, this, &WorkbenchSurface::Notice);
    connect(m_comparisonPage, &ComparisonPage::Notice, this, &WorkbenchSurface::Notice);
    connect(m_sleepPage, &SleepPage::Notice, this, &WorkbenchSurface::Notice);
    connect(m_comparisonPage, &ComparisonPage::RowWanted, this,
            [this](std::size_t row) { m_list->Choose({row}); });
    connect(m_searchPage, &SearchPage::TakenOver, this, [this](const RunTrace& before) {
        m_comparisonPage->CompareWith(before,
                                      QStringLiteral("Verglichen mit dem Plan vor dem Fund"),
                                      QStringLiteral("gemerkt"));
    });
    connect(m_searchPage, &SearchPage::FindToCompare, this, [this](const RunTrace& find) {
        m_comparisonPage->CompareWith(find, QStringLiteral("Verglichen mit dem Fund der Suche"),
                                      FindName());
        ShowPage(kComparisonPage);
    });
    connect(m_comparisonPage, &ComparisonPage::OtherRunChanged, this,
            &WorkbenchSurface::ShowOtherRuns);
    connect(m_searchPage, &SearchPage::StateChanged, this, &WorkbenchSurface::ShowOtherRuns);
    connect(m_sleepPage, &SleepPage::ProposalChanged, this, &WorkbenchSurface::ShowProposedNights);
    connect(m_pages, &QTabWidget::currentChanged, this, &WorkbenchSurface::ShowProposedNights);
}

void WorkbenchSurface::FollowDesktop(const WorkbenchColors& colors) {
    for (auto* const view : findChildren<QAbstractItemView*>()) {
        view->setPalette(colors.ViewPalette());
    }
    for (auto* const label : findChildren<TypeLabel*>()) {
        label->FollowFont(font());
    }
    QPalette pages = colors.Palette();
    pages.setColor(QPalette::Window, colors[Color::Toolbar]);
    for (QScrollArea* const scrollArea : m_scrollAreas) {
        scrollArea->setPalette(pages);
    }
    m_strip->FollowAppearance();
    m_list->FollowAppearance();
    m_palette->FollowAppearance();
    m_searchPage->FollowAppearance();
    m_timeline->SetAppearance(colors.Palette(), font());
    // Wide enough never to scroll sideways.
    constexpr int kUsualWidth = 384;
    int width = kUsualWidth;
    for (QScrollArea* const scrollArea : m_scrollAreas) {
        width = std::max(width, scrollArea->widget()->minimumSizeHint().width() +
                                    style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 4);
    }
    m_pages->setFixedWidth(width);
}

void WorkbenchSurface::SetPictures(const PerItem<QPixmap>& pictures) {
    m_list->SetPictures(pictures);
    m_palette->SetPictures(pictures);
    m_searchPage->SetPictures(pictures);
    m_timeline->SetPictures(pictures);
    m_strip->SetPictures(pictures);
    m_startPage->SetPictures(pictures);
}

void WorkbenchSurface::ShowPlan(const std::vector<std::size_t>& chosen,
                                std::optional<std::size_t> insertBefore) {
    const auto& trace = m_document.Trace();
    const bool isEmpty = m_document.CurrentPlan().LV_Bauliste.Orders().IsEmpty();
    emit Notice(trace     ? MessagesText(*trace)
                : isEmpty ? "F1 öffnet die Anleitung an dieser Stelle."
                          : m_document.Obstacle());
    m_startPage->Refresh();
    m_stack->setCurrentIndex(isEmpty ? 1 : 0);
    m_list->Refresh(chosen, insertBefore);
    m_sleepPage->Refresh();
    m_timeline->SetRun(trace);
    m_comparisonPage->ShowOwnRun();
    ShowChoice();
}

const QWidget* WorkbenchSurface::CurrentPage() const {
    return m_scrollAreas[static_cast<std::size_t>(m_pages->currentIndex())]->widget();
}

void WorkbenchSurface::ShowPage(int index) {
    m_pages->setCurrentIndex(index);
    for (auto* const control : CurrentPage()->findChildren<QWidget*>()) {
        if (control->isVisible() && control->isEnabled() &&
            (control->focusPolicy() & Qt::TabFocus) != 0) {
            control->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

void WorkbenchSurface::ShowChoice() {
    m_searchPage->ShowEffects();
    const auto chosen = m_list->ChosenRows();
    m_timeline->SetChosenRows({chosen.begin(), chosen.end()});
    if (!chosen.empty()) {
        m_timeline->BringIntoView(chosen.front());
    }
}

void WorkbenchSurface::ShowMarks(const OrderMarks& marks) {
    m_list->SetMarks(marks);
    m_timeline->SetMarks(marks.next, marks.refused);
}

void WorkbenchSurface::DescribeMoment(std::optional<SimTime> moment) {
    const auto& trace = m_document.Trace();
    m_timeline->setAccessibleDescription(trace && moment ? ToQString(StatusText(*trace, *moment))
                                                         : QString());
}

void WorkbenchSurface::ShowOtherRuns() {
    std::vector<DashedRun> others;
    const bool isFind = m_comparisonPage->OtherName() == FindName();
    if (const auto& other = m_comparisonPage->OtherRun()) {
        others.push_back({.run = *other,
                          .name = m_comparisonPage->OtherName(),
                          .color = isFind ? Color::Gain : Color::Weak});
    }
    if (const auto& find = m_searchPage->FindTrace(); find && (others.empty() || !isFind)) {
        others.push_back({.run = *find, .name = FindName(), .color = Color::Gain});
    }
    m_timeline->SetOtherRuns(std::move(others));
}

// While the page is open its nights, else those that the plan misses.
void WorkbenchSurface::ShowProposedNights() {
    const auto& trace = m_document.Trace();
    const bool misses = trace && SleeplessFrom(m_document.CurrentPlan().LV_Schlafzeiten,
                                               trace->conditions.StartDate,
                                               trace->conditions.WallClock(trace->Duration()));
    m_timeline->SetProposedNights(misses || CurrentPage() == m_sleepPage
                                      ? m_sleepPage->ProposedNights()
                                      : std::vector<cSchlafzeit>());
}

void WorkbenchSurface::ShowNow(DateTime now) {
    m_timeline->SetNow(now);
    m_strip->ShowNext(m_document.Trace(), now);
    if (m_searchPage->isVisible()) {
        m_searchPage->ShowEffects();
    }
}

}  // namespace tarvelin
