// Layout, shortcuts and search of the guide's window.
#include "ui/workbench/HelpWindow.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

constexpr QSize kInitialSize(980, 720);
constexpr QSize kSmallestSize(600, 400);
constexpr int kHeadingsWidth = 230;
/// In pixels, as in all windows of the workbench.
constexpr int kMargin = 12;
constexpr int kSpacing = 8;
constexpr int kInputHeight = 26;
constexpr int kButtonHeight = 28;
constexpr int kSplitterWidth = 5;

}  // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QWidget(parent, Qt::Window),
      m_guide(new GuideView(this)),
      m_headings(new QTreeWidget(this)),
      m_search(new QLineEdit(this)),
      m_notFound(NewLabel(QStringLiteral("LBL_NichtGefunden"), {}, this)) {
    setObjectName(QStringLiteral("frmAnleitung"));
    setWindowTitle(QStringLiteral("Tarvelin Anleitung"));
    setAttribute(Qt::WA_QuitOnClose, false);
    Arrange();
    AddHeadings();
    AddShortcuts();
    setMinimumSize(kSmallestSize);
    resize(kInitialSize);
    SetAppearance(palette(), font());
}

void HelpWindow::Arrange() {
    m_headings->setObjectName(QStringLiteral("Kapitel"));
    m_headings->setAccessibleName(QStringLiteral("Kapitel der Anleitung"));
    m_headings->setHeaderHidden(true);
    m_headings->setRootIsDecorated(false);
    m_headings->setItemsExpandable(false);
    m_headings->setFrameShape(QFrame::NoFrame);
    auto* const splitter = new QSplitter(this);
    splitter->setHandleWidth(kSplitterWidth);
    splitter->addWidget(m_headings);
    splitter->addWidget(m_guide);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kHeadingsWidth, kInitialSize.width() - kHeadingsWidth});
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(NewSearchBar());
    layout->addWidget(splitter, 1);
    const auto show = [this](const QTreeWidgetItem* chosen) {
        const auto item = std::ranges::find(m_items, chosen);
        ShowHeading(static_cast<std::size_t>(item - m_items.begin()));
    };
    connect(m_headings, &QTreeWidget::currentItemChanged, this, show);
    // A click on the heading that is marked already leads back to it.
    connect(m_headings, &QTreeWidget::itemClicked, this, show);
    connect(m_guide->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &HelpWindow::MarkHeadingInSight);
}

QWidget* HelpWindow::NewSearchBar() {
    auto* const bar = new QWidget(this);
    m_search->setObjectName(QStringLiteral("txt_Anleitung"));
    m_search->setAccessibleName(QStringLiteral("In der Anleitung suchen"));
    m_search->setPlaceholderText(QStringLiteral("In der Anleitung suchen (Strg+F)"));
    m_search->setClearButtonEnabled(true);
    m_search->setFixedHeight(kInputHeight);
    m_search->setMaximumWidth(2 * kHeadingsWidth);
    auto* const layout = new QHBoxLayout(bar);
    layout->setContentsMargins(kMargin, kSpacing, kMargin, kSpacing);
    layout->setSpacing(kSpacing);
    layout->addWidget(m_search, 1);
    for (const auto& [name, text, key, search] :
         {std::tuple("Cmd_Weiter", "&Weiter", "F3", GuideView::Search::Next),
          std::tuple("Cmd_Davor", "&Davor", "Umschalt+F3", GuideView::Search::Previous)}) {
        auto* const button = new QPushButton(QString::fromUtf8(text), bar);
        button->setObjectName(QString::fromLatin1(name));
        button->setToolTip(QString::fromUtf8(key));
        button->setFixedHeight(kButtonHeight);
        connect(button, &QPushButton::clicked, this, [this, how = search] { Find(how); });
        layout->addWidget(button);
    }
    layout->addWidget(m_notFound);
    layout->addStretch(1);
    connect(m_search, &QLineEdit::textChanged, this, [this] { Find(GuideView::Search::FromHere); });
    connect(m_search, &QLineEdit::returnPressed, this, [this] { Find(GuideView::Search::Next); });
    return bar;
}

// The title stands for the top; chapters have their parts below them.
void HelpWindow::AddHeadings() {
    constexpr int kPart = 3;
    constexpr QSize kRow(0, 22);
    QTreeWidgetItem* chapter = nullptr;
    for (const GuideView::Heading& heading : m_guide->Headings()) {
        const bool isPart = heading.level >= kPart && chapter != nullptr;
        auto* const item = isPart ? new QTreeWidgetItem(chapter) : new QTreeWidgetItem(m_headings);
        item->setText(0, heading.text);
        item->setSizeHint(0, kRow);
        m_items.push_back(item);
        chapter = isPart ? chapter : item;
    }
    m_headings->expandAll();
}

void HelpWindow::AddShortcuts() {
    const auto add = [this](const QKeySequence& key, auto operation) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, operation);
    };
    add(Qt::Key_Escape, [this] { close(); });
    add(Qt::CTRL | Qt::Key_F, [this] {
        m_search->setFocus();
        m_search->selectAll();
    });
    add(Qt::Key_F3, [this] { Find(GuideView::Search::Next); });
    add(Qt::SHIFT | Qt::Key_F3, [this] { Find(GuideView::Search::Previous); });
}

void HelpWindow::OpenAt(const QString& heading) {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    const auto& headings = m_guide->Headings();
    const auto found = std::ranges::find(headings, heading, &GuideView::Heading::text);
    ShowHeading(found == headings.end() ? 0 : static_cast<std::size_t>(found - headings.begin()));
}

void HelpWindow::SetAppearance(const QPalette& palette, const QFont& font) {
    const WorkbenchColors colors = ColorsFor(palette);
    setPalette(colors.Palette());
    setFont(font);
    m_guide->SetAppearance(palette, font);
    QPalette warning = colors.Palette();
    warning.setColor(QPalette::WindowText, colors[Color::Deficit]);
    m_notFound->setPalette(warning);
}

void HelpWindow::ShowHeading(std::size_t index) {
    if (index >= m_items.size()) {
        return;
    }
    const QSignalBlocker quiet(m_headings);
    // The last headings don't reach the upper edge, but one of them was asked for.
    const QScopedValueRollback jumps(m_jumps, true);
    m_guide->ShowHeading(index);
    m_headings->setCurrentItem(m_items[index]);
}

void HelpWindow::MarkHeadingInSight() {
    if (!m_jumps && !m_items.empty()) {
        const QSignalBlocker quiet(m_headings);
        m_headings->setCurrentItem(m_items[m_guide->HeadingInSight()]);
    }
}

void HelpWindow::Find(GuideView::Search search) {
    const bool found = m_guide->FindText(m_search->text(), search);
    m_notFound->setText(found || m_search->text().isEmpty() ? QString()
                                                            : QStringLiteral("nicht gefunden"));
}

}  // namespace tarvelin
