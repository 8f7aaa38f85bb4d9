// Layout of the workbench, and what its labels show.
#include "ui/workbench/WorkbenchSurface.h"

#include <QAccessible>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

#include "simulation/ResultTexts.h"
#include "simulation/RunTexts.h"
#include "simulation/StatusTexts.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

QLabel* NewTextLabel(const char* name, const char* accessibleName, QWidget* parent) {
    QLabel* const label = NewLabel(QString::fromLatin1(name), {}, parent);
    label->setAccessibleDescription(QString::fromUtf8(accessibleName));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

}  // namespace

WorkbenchSurface::WorkbenchSurface(Document& document, const Environment& environment,
                                   QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_buttons(new QHBoxLayout),
      m_messageLabel(NewTextLabel("LBL_Meldung", "Meldung", this)),
      m_list(new OrderListView(document, this)),
      m_pages(new QTabWidget(this)),
      m_palette(new ItemPalette(this)),
      m_searchPage(new SearchPage(
          document, environment, [this] { return m_list->ChosenRows(); }, this)),
      m_comparisonPage(new ComparisonPage(document, environment, this)),
      m_timeline(new TimelineView(this)),
      m_statusLabel(NewTextLabel("LBL_Stand", "Stand am Zeiger", this)),
      m_durationLabel(NewTextLabel("LBL_Dauer", "Dauer des Plans", this)),
      m_changeLabel(NewTextLabel("LBL_Aenderung", "Änderung der Dauer", this)),
      m_nextOrderLabel(NewTextLabel("LBL_Naechster", "Nächster Auftrag", this)) {
    Arrange();
    ConnectSignals();
}

QPushButton* WorkbenchSurface::AddButton(const QString& name, const QString& caption) {
    auto* const button = new QPushButton(caption, this);
    button->setObjectName(name);
    // In front of the empty space at the end.
    m_buttons->insertWidget(m_buttons->count() - 1, button);
    return button;
}

QWidget* WorkbenchSurface::NewPages() {
    m_pages->setObjectName(QStringLiteral("Felder"));
    for (const auto& [page, caption] :
         {std::pair<QWidget*, QString>(m_palette, QStringLiteral("&Einfügen")),
          std::pair<QWidget*, QString>(m_searchPage, QStringLiteral("Su&che"))}) {
        // A small screen has no room for the whole page.
        auto* const scrollArea = new QScrollArea(this);
        scrollArea->setWidget(page);
        scrollArea->setWidgetResizable(true);
        scrollArea->setFrameShape(QFrame::NoFrame);
        scrollArea->setFocusPolicy(Qt::NoFocus);
        m_pages->addTab(scrollArea, caption);
        m_scrollAreas.push_back(scrollArea);
    }
    m_pages->addTab(m_comparisonPage, QStringLiteral("Ver&gleich"));
    return m_pages;
}

void WorkbenchSurface::Arrange() {
    m_buttons->addStretch(1);
    m_messageLabel->setWordWrap(true);
    m_messageLabel->setFrameStyle(QFrame::StyledPanel);
    m_messageLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_statusLabel->setWordWrap(true);

    auto* const top = new QSplitter(Qt::Horizontal, this);
    top->setChildrenCollapsible(false);
    top->addWidget(m_list);
    top->addWidget(NewPages());
    top->setStretchFactor(0, 1);
    auto* const splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(top);
    splitter->addWidget(m_timeline);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);

    auto* const footer = new QHBoxLayout;
    footer->addWidget(m_durationLabel);
    footer->addWidget(m_changeLabel);
    footer->addStretch(1);
    footer->addWidget(m_nextOrderLabel);

    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(m_buttons);
    layout->addWidget(m_messageLabel);
    layout->addWidget(splitter, 1);
    layout->addWidget(m_statusLabel);
    layout->addLayout(footer);
}

void WorkbenchSurface::ConnectSignals() {
    connect(m_list, &OrderListView::ChoiceChanged, this, &WorkbenchSurface::ShowChoice);
    connect(m_timeline, &TimelineView::CursorMoved, this, &WorkbenchSurface::ShowStatusAt);
    connect(m_timeline, &TimelineView::RowChosen, this,
            [this](std::size_t row) { m_list->Choose({row}); });
    connect(m_searchPage, &SearchPage::Notice, this, &WorkbenchSurface::ShowNotice);
    connect(m_comparisonPage, &ComparisonPage::Notice, this, &WorkbenchSurface::ShowNotice);
    connect(m_comparisonPage, &ComparisonPage::OtherRunChanged, this,
            [this] { m_timeline->SetOtherRun(m_comparisonPage->OtherRun()); });
}

void WorkbenchSurface::FollowDesktop(const QPalette& colors) {
    SetMessageHeight();
    m_timeline->SetAppearance(colors, font());
    m_list->SetDeficitColor(m_timeline->DeficitColor());
    // Wide enough never to scroll sideways.
    for (QScrollArea* const scrollArea : m_scrollAreas) {
        scrollArea->setMinimumWidth(scrollArea->widget()->minimumSizeHint().width() +
                                    style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    }
}

// A fixed height, so that nothing moves when a message comes or goes.
void WorkbenchSurface::SetMessageHeight() {
    constexpr int kLineCount = 2;
    m_messageLabel->setFixedHeight(kLineCount * m_messageLabel->fontMetrics().lineSpacing() +
                                   2 * m_messageLabel->frameWidth() + 2);
}

void WorkbenchSurface::SetPictures(const PerItem<QPixmap>& pictures) {
    m_palette->SetPictures(pictures);
    m_timeline->SetPictures(pictures);
}

void WorkbenchSurface::ShowPlan(const std::vector<std::size_t>& chosen) {
    const auto& trace = m_document.Trace();
    ShowNotice(trace ? MessagesText(*trace) : m_document.Obstacle());
    m_list->Refresh(chosen);
    m_timeline->SetRun(trace);
    m_comparisonPage->ShowOwnRun();
    ShowChoice();
    ShowFooter();
    ShowStatusAt(std::nullopt);
}

void WorkbenchSurface::ShowFooter() {
    const auto& trace = m_document.Trace();
    m_durationLabel->setText(QStringLiteral("Dauer: ") +
                             (trace ? ToQString(DurationText(trace->end)) : QStringLiteral("-")));
    const auto change = m_document.DurationChange();
    m_changeLabel->setText(change ? ToQString(SignedTimeSpanText(*change)) : QString());
}

void WorkbenchSurface::ShowChoice() {
    const auto chosen = m_list->ChosenRows();
    m_timeline->SetChosenRows({chosen.begin(), chosen.end()});
    if (!chosen.empty()) {
        m_timeline->BringIntoView(chosen.front());
    }
}

void WorkbenchSurface::ShowStatusAt(std::optional<SimTime> moment) {
    const auto& trace = m_document.Trace();
    m_statusLabel->setText(trace && moment ? ToQString(StatusText(*trace, *moment))
                                           : QStringLiteral("\n"));
    m_timeline->setAccessibleDescription(m_statusLabel->text());
}

void WorkbenchSurface::ShowNow(DateTime now) {
    const auto& trace = m_document.Trace();
    m_timeline->SetNow(now);
    const auto next = trace ? NextOrderText(*trace, now) : std::nullopt;
    m_nextOrderLabel->setText(next ? QStringLiteral("Als Nächstes: ") + ToQString(*next)
                                   : QString());
}

void WorkbenchSurface::ShowNotice(const std::string& text) {
    m_messageLabel->setText(ToQString(text).trimmed());
    // The label shows only two lines.
    m_messageLabel->setToolTip(m_messageLabel->text());
    if (!text.empty()) {
        // Screen readers read it at once, wherever the focus is.
        QAccessibleEvent alert(m_messageLabel, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

}  // namespace tarvelin
