// Layout of the start page, its cards and links.
#include "ui/workbench/StartPage.h"

#include <QEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "document/PlanRun.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/DropZone.h"
#include "ui/workbench/OpeningCard.h"
#include "ui/workbench/PageParts.h"

namespace tarvelin {

namespace {

/// In pixels.
constexpr int kMargin = 24;
constexpr int kCardGap = 12;
constexpr int kSpacing = 4;
/// From here on there are two cards side by side.
constexpr int kTwoColumns = 700;

/// As many as there is room for.
constexpr std::size_t kRecentFiles = 3;

/// Looks like a link. Long names end in an ellipsis.
class LinkButton final : public QPushButton {
  public:
    LinkButton(const QString& text, QWidget* parent) : QPushButton(parent) {
        setAccessibleName(text);
        setAutoDefault(true);
        setCursor(Qt::PointingHandCursor);
        QFont underlined;
        underlined.setUnderline(true);
        setFont(underlined);
        constexpr int kWidest = 150;
        const QString shown = fontMetrics().elidedText(text, Qt::ElideMiddle, kWidest);
        setText(shown);
        setFixedSize(fontMetrics().horizontalAdvance(shown) + 2 * kSpacing,
                     fontMetrics().height() + 2 * kSpacing);
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setPen(ColorsFor(palette())[Color::Accent]);
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
};

}  // namespace

StartPage::StartPage(const Document& document, const std::filesystem::path& openings,
                     QWidget* parent)
    : QScrollArea(parent),
      m_document(document),
      m_dropZone(new DropZone(this)),
      m_cardLayout(new QGridLayout),
      m_linkLayout(new QBoxLayout(QBoxLayout::LeftToRight)) {
    setObjectName(QStringLiteral("Startseite"));
    setAccessibleName(QStringLiteral("Noch ist der Plan leer"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    connect(m_dropZone, &DropZone::Dropped, this, &StartPage::PictureDropped);
    AddCards(openings);
    Arrange();
    FollowFont();
}

void StartPage::Arrange() {
    auto* const content = new QWidget;
    content->setBackgroundRole(QPalette::Base);
    auto* const explanation = NewTypeLabel(
        QStringLiteral("Du legst fest, was du baust und in welcher Reihenfolge. Tarvelin rechnet "
                       "aus, wann jeder Auftrag geht, und warum nicht früher."),
        TypeSize::Usual, false, content);
    explanation->setForegroundRole(QPalette::PlaceholderText);
    auto* const layout = new QVBoxLayout(content);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kSpacing);
    layout->addWidget(
        NewTypeLabel(QStringLiteral("Noch ist der Plan leer"), TypeSize::Figure, true, content));
    layout->addWidget(explanation);
    layout->addSpacing(kSpacing);
    layout->addWidget(m_dropZone);
    layout->addSpacing(kSectionGap);
    layout->addWidget(NewTypeLabel(QStringLiteral("Oder fang mit einer Eröffnung an"),
                                   TypeSize::Heading, true, content));
    layout->addSpacing(kSpacing);
    layout->addLayout(m_cardLayout);
    layout->addSpacing(kSectionGap - kSpacing);
    layout->addLayout(m_linkLayout);
    layout->addStretch(1);
    m_cardLayout->setSpacing(kCardGap);
    auto* const recent = NewTypeLabel(QStringLiteral("Zuletzt"), TypeSize::Usual, true, content);
    recent->setWordWrap(false);
    m_linkLayout->setSpacing(2 * kSpacing);
    m_linkLayout->addWidget(recent);
    m_linkLayout->addStretch(1);
    PlaceCards(2);
    setWidget(content);
    setWidgetResizable(true);
}

void StartPage::AddCards(const std::filesystem::path& openings) {
    struct Run {
        const Opening* opening;
        RunTrace trace;
    };
    std::vector<Run> runs;
    Long longest = 0;
    for (const Opening& opening : Openings()) {
        const PlanRun plan(openings / opening.file);
        if (plan.hasRun) {
            runs.push_back({&opening, plan.Trace()});
            longest = std::max(longest, runs.back().trace.Duration().Seconds());
        }
    }
    // Room for the line of the latest end.
    constexpr Long kShare = 50;
    for (const Run& run : runs) {
        auto* const card =
            new OpeningCard(*run.opening, run.trace, longest + longest / kShare, this);
        const auto file = openings / run.opening->file;
        connect(card, &OpeningCard::Chosen, this, [this, file] { emit OpeningChosen(file); });
        m_cards.push_back(card);
    }
}

void StartPage::PlaceCards(int columns) {
    if (columns == m_columns) {
        return;
    }
    m_columns = columns;
    int index = 0;
    for (OpeningCard* const card : m_cards) {
        m_cardLayout->removeWidget(card);
        m_cardLayout->addWidget(card, index / columns, index % columns);
        ++index;
    }
    m_linkLayout->setDirection(columns == 1 ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_cardLayout->setColumnStretch(0, 1);
    m_cardLayout->setColumnStretch(1, columns - 1);
}

void StartPage::SetPictures(const PerItem<QPixmap>& pictures) {
    m_dropZone->SetPictures(pictures);
    for (OpeningCard* const card : m_cards) {
        card->SetPictures(pictures);
    }
}

void StartPage::Refresh() {
    for (QPushButton* const link : m_links) {
        // One of them may have asked for this.
        link->hide();
        link->deleteLater();
    }
    m_links.clear();
    const auto add = [this](const QString& name, const QString& hint) {
        auto* const link = new LinkButton(name, widget());
        link->setToolTip(hint);
        m_linkLayout->insertWidget(static_cast<int>(m_links.size()) + 1, link);
        m_links.push_back(link);
        return link;
    };
    for (const std::filesystem::path& file : m_document.RecentFiles()) {
        if (m_links.size() < kRecentFiles) {
            connect(add(PathToQString(file.filename()), PathToQString(file)), &QPushButton::clicked,
                    this, [this, file] { emit FileChosen(file); });
        }
    }
    connect(add(QStringLiteral("Andere Datei ..."), {}), &QPushButton::clicked, this,
            &StartPage::OpenWanted);
}

void StartPage::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    PlaceCards(viewport()->width() < kTwoColumns ? 1 : 2);
}

void StartPage::changeEvent(QEvent* event) {
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        FollowFont();
    }
}

void StartPage::FollowFont() {
    for (TypeLabel* const label : findChildren<TypeLabel*>()) {
        label->FollowFont(font());
    }
    // Their widths depend on it.
    Refresh();
}

}  // namespace tarvelin
