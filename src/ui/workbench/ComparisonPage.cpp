// Layout, and the two tables of differences.
#include "ui/workbench/ComparisonPage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "document/PlanRun.h"
#include "export/ComparisonTexts.h"
#include "simulation/RunTexts.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/PageParts.h"

namespace tarvelin {

ComparisonPage::ComparisonPage(const Document& document, const Environment& environment,
                               QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_environment(environment),
      m_rememberButton(new QPushButton(QStringLiteral("&Merken"), this)),
      m_fileButton(new QPushButton(QStringLiteral("Mit &Datei..."), this)),
      m_clearButton(new QPushButton(QStringLiteral("&Ohne"), this)),
      m_nameLabel(NewLabel(QStringLiteral("LBL_Vergleich"), {}, this)),
      m_summaryTable(new ComparisonTable(QStringLiteral("LV_Kennzahlen"),
                                         QStringLiteral("Kennzahlen im Vergleich"), {}, this)),
      m_orderTable(new ComparisonTable(QStringLiteral("LV_Unterschiede"),
                                       QStringLiteral("Aufträge zu anderer Zeit"),
                                       QStringLiteral("Auftrag"), this)) {
    setObjectName(QStringLiteral("Vergleichsfeld"));
    m_rememberButton->setObjectName(QStringLiteral("Cmd_Merken"));
    m_fileButton->setObjectName(QStringLiteral("Cmd_MitDatei"));
    m_clearButton->setObjectName(QStringLiteral("Cmd_OhneVergleich"));
    m_rememberButton->setToolTip(
        QStringLiteral("Der Plan, wie er jetzt ist, wird zum Vergleich behalten"));
    connect(m_rememberButton, &QPushButton::clicked, this, &ComparisonPage::Remember);
    connect(m_fileButton, &QPushButton::clicked, this, &ComparisonPage::LoadOther);
    connect(m_clearButton, &QPushButton::clicked, this, &ComparisonPage::ClearOther);
    const auto findRow = [this](const QModelIndex& index) {
        FindRow(static_cast<std::size_t>(index.row()));
    };
    connect(m_orderTable, &QAbstractItemView::clicked, this, findRow);
    connect(m_orderTable, &QAbstractItemView::activated, this, findRow);
    Arrange();
    ShowOwnRun();
}

void ComparisonPage::Arrange() {
    auto* const buttons = new QHBoxLayout;
    for (QPushButton* const button : {m_rememberButton, m_fileButton, m_clearButton}) {
        buttons->addWidget(button);
    }
    buttons->setSpacing(kControlGap);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
    layout->setSpacing(kControlGap);
    layout->addLayout(buttons);
    m_nameLabel->setWordWrap(true);
    layout->addWidget(m_nameLabel);
    layout->addWidget(m_summaryTable, 2);
    layout->addWidget(m_orderTable, 3);
}

void ComparisonPage::Remember() {
    if (!m_document.Trace()) {
        return;
    }
    CompareWith(m_document.Trace(), QStringLiteral("Verglichen mit dem gemerkten Plan"),
                QStringLiteral("gemerkt"));
}

void ComparisonPage::LoadOther() {
    const auto file = m_environment.AskForFile(Dialogs::Purpose::Load);
    if (file.empty()) {
        return;
    }
    const PlanRun other(PathToQString(file.filename()).toStdString(),
                        IniFile::Load(file, m_environment.files));
    if (!other.hasRun) {
        emit Notice(other.messages.empty() ? "" : other.messages.back().text);
        return;
    }
    emit Notice(other.run.state.IsAtEndOfClock() ? BeyondClockText() : "");
    CompareWith(other.Trace(), QStringLiteral("Verglichen mit ") + ToQString(other.name),
                QStringLiteral("Datei"));
}

void ComparisonPage::ClearOther() {
    CompareWith(std::nullopt, {}, QStringLiteral("gemerkt"));
}

void ComparisonPage::CompareWith(std::optional<RunTrace> other, const QString& name,
                                 const QString& column) {
    m_other = std::move(other);
    m_otherName = column;
    for (ComparisonTable* const table : {m_summaryTable, m_orderTable}) {
        table->SetOtherCaption(column);
    }
    m_nameLabel->setText(name);
    ShowOwnRun();
    emit OtherRunChanged();
}

void ComparisonPage::FindRow(std::size_t difference) {
    const ComparisonRow& wanted = m_differences[difference];
    const auto& starts = m_document.Trace()->starts;
    const auto start = std::ranges::find_if(starts, [&](const StartEvent& event) {
        return event.order == wanted.order && wanted.b == event.start;
    });
    if (start == starts.end()) {
        emit Notice("Diesen Auftrag hat der Plan jetzt nicht.");
    } else {
        emit Notice("");
        emit RowWanted(start->row);
    }
}

void ComparisonPage::ShowOwnRun() {
    const auto& own = m_document.Trace();
    TextTable summaries;
    TextTable orders;
    if (own && m_other) {
        Comparison comparison = tarvelin::Compare(*m_other, *own);
        summaries = SummaryTexts(comparison);
        orders = OrderDifferences(comparison);
        m_differences = std::move(comparison.differences);
    }
    m_summaryTable->ShowRows(std::move(summaries));
    m_orderTable->ShowRows(std::move(orders));
    m_rememberButton->setEnabled(own.has_value());
    m_clearButton->setEnabled(m_other.has_value());
}

}  // namespace tarvelin
