// Layout, and the two tables of differences.
#include "ui/workbench/ComparisonPage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <utility>

#include "persistence/PlanRun.h"
#include "simulation/RunTexts.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

ComparisonPage::ComparisonPage(const Environment& environment, QWidget* parent)
    : QWidget(parent),
      m_environment(environment),
      m_rememberButton(new QPushButton(QStringLiteral("&Merken"), this)),
      m_fileButton(new QPushButton(QStringLiteral("Mit &Datei..."), this)),
      m_clearButton(new QPushButton(QStringLiteral("&Ohne"), this)),
      m_nameLabel(NewLabel(QStringLiteral("LBL_Vergleich"), {}, this)),
      m_summaryList(
          NewTable("LV_Kennzahlen", "Kennzahlen im Vergleich", "", m_summaries, &m_summaryModel)),
      m_orderList(NewTable("LV_Unterschiede", "Aufträge zu anderer Zeit", "Auftrag", m_orders,
                           &m_orderModel)) {
    setObjectName(QStringLiteral("Vergleichsfeld"));
    m_rememberButton->setObjectName(QStringLiteral("Cmd_Merken"));
    m_fileButton->setObjectName(QStringLiteral("Cmd_MitDatei"));
    m_clearButton->setObjectName(QStringLiteral("Cmd_OhneVergleich"));
    m_rememberButton->setToolTip(
        QStringLiteral("Der Plan, wie er jetzt ist, wird zum Vergleich behalten"));
    connect(m_rememberButton, &QPushButton::clicked, this, &ComparisonPage::Remember);
    connect(m_fileButton, &QPushButton::clicked, this, &ComparisonPage::LoadOther);
    connect(m_clearButton, &QPushButton::clicked, this, &ComparisonPage::ClearOther);
    Arrange();
    Recompare();
}

// The tables read members, which are destroyed before child widgets.
ComparisonPage::~ComparisonPage() {
    delete m_summaryList;
    delete m_orderList;
}

ListView* ComparisonPage::NewTable(const char* name, const char* accessibleName, const char* first,
                                   const std::vector<ComparisonText>& rows, TableModel** model) {
    *model =
        new TableModel({QString::fromUtf8(first), QStringLiteral("dort"), QStringLiteral("hier"),
                        QStringLiteral("Unterschied")},
                       {.rows = [&rows] { return rows.size(); },
                        .text =
                            [&rows](std::size_t row, int column) {
                                return ToQString(rows[row].at(static_cast<std::size_t>(column)));
                            }},
                       this);
    auto* const table = new ListView(QString::fromLatin1(name), QString::fromUtf8(accessibleName),
                                     {12, 9, 9, 8}, this);
    table->setModel(*model);
    table->setTextElideMode(Qt::ElideRight);
    return table;
}

void ComparisonPage::Arrange() {
    auto* const buttons = new QHBoxLayout;
    for (QPushButton* const button : {m_rememberButton, m_fileButton, m_clearButton}) {
        buttons->addWidget(button);
    }
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(m_nameLabel);
    layout->addWidget(m_summaryList, 2);
    layout->addWidget(m_orderList, 3);
}

QSize ComparisonPage::minimumSizeHint() const {
    // Room for an order and three time spans of many days.
    constexpr int kCharacters = 86;
    return QWidget::minimumSizeHint().expandedTo(
        QSize(kCharacters * fontMetrics().averageCharWidth(), 0));
}

void ComparisonPage::SetOwnRun(const std::optional<RunTrace>& own) {
    m_own = own;
    Recompare();
}

void ComparisonPage::Remember() {
    SetOther(m_own, QStringLiteral("Verglichen mit dem gemerkten Plan"));
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
    SetOther(other.Trace(), QStringLiteral("Verglichen mit ") + ToQString(other.name));
}

void ComparisonPage::ClearOther() {
    SetOther(std::nullopt, {});
}

void ComparisonPage::SetOther(std::optional<RunTrace> other, const QString& name) {
    m_other = std::move(other);
    m_nameLabel->setText(name);
    Recompare();
    emit OtherRunChanged();
}

void ComparisonPage::Recompare() {
    m_summaries.clear();
    m_orders.clear();
    if (m_own && m_other) {
        const Comparison comparison = tarvelin::Compare(*m_other, *m_own);
        m_summaries = SummaryTexts(comparison);
        m_orders = OrderDifferences(comparison);
    }
    m_summaryModel->Refresh();
    m_orderModel->Refresh();
    m_rememberButton->setEnabled(m_own.has_value());
    m_clearButton->setEnabled(m_other.has_value());
}

}  // namespace tarvelin
