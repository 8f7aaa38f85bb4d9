// Layout of the options, and the line that each has.
#include "ui/workbench/SearchOptions.h"

#include <QHBoxLayout>
#include <algorithm>
#include <limits>
#include <thread>
#include <utility>

#include "search/SearchTexts.h"
#include "simulation/Comparison.h"
#include "simulation/RunTexts.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/PageParts.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr double kPercent = 100;
constexpr double kUsualSlack = 0.5;

QCheckBox* NewCheckBox(const char* name, const char* text, QWidget* parent) {
    auto* const checkBox = new QCheckBox(QString::fromUtf8(text), parent);
    checkBox->setObjectName(QString::fromLatin1(name));
    return checkBox;
}

std::ptrdiff_t ProductionRows(const Document& document) {
    const auto orders = document.CurrentPlan().LV_Bauliste.Orders().All();
    return std::ranges::count(orders, Order::Kind::Production, &Order::kind);
}

QString RowsText(const std::vector<std::size_t>& rows) {
    constexpr std::size_t kNamed = 8;
    QStringList numbers;
    for (std::size_t i = 0; i < std::min(kNamed, rows.size()); ++i) {
        numbers.push_back(QString::number(rows[i] + 1));
    }
    return numbers.join(QStringLiteral(", ")) +
           (rows.size() > kNamed ? QStringLiteral(" ...") : QString());
}

}  // namespace

SearchOptions::SearchOptions(const Document& document,
                             std::function<std::vector<std::size_t>()> chosen,
                             std::function<DateTime()> now, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_chosen(std::move(chosen)),
      m_now(std::move(now)),
      m_fold(new QToolButton(this)),
      m_summary(NewHint({}, this)),
      m_details(new QWidget(this)),
      m_pinned(NewCheckBox("Chk_Fest", "Gewählte Zeilen bleiben &fest", m_details)),
      m_free(NewCheckBox("Chk_Frei", "Produktionszeilen wandern &mit", m_details)),
      m_fromNow(NewCheckBox("Chk_AbJetzt", "Ab &jetzt: was begonnen hat, bleibt", m_details)),
      m_sittings(NewCheckBox("Chk_Sitzungen", "Weniger Sit&zungen, länger um", m_details)),
      m_slack(NewInput<QDoubleSpinBox>("Spin_Nachlass", "Prozent länger", m_details)),
      m_tries(NewInput<QSpinBox>("Spin_Versuche", "Zahl der Versuche", m_details)) {
    m_fold->setObjectName(QStringLiteral("Cmd_Wuensche"));
    m_fold->setText(QStringLiteral("&Wünsche"));
    m_fold->setCheckable(true);
    m_fold->setAutoRaise(true);
    m_fold->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_details->setObjectName(QStringLiteral("Details_Wuensche"));
    m_slack->setRange(0, kPercent);
    m_slack->setSingleStep(kUsualSlack);
    m_slack->setValue(kUsualSlack);
    m_slack->setSuffix(QStringLiteral(" %"));
    constexpr auto kTries = static_cast<int>(SearchBudget::kDefaultTries);
    m_tries->setRange(1, std::numeric_limits<int>::max());
    m_tries->setSingleStep(kTries);
    m_tries->setValue(kTries);
    m_tries->setGroupSeparatorShown(true);
    m_tries->setSuffix(QStringLiteral(" Versuche"));

    auto* const details = new QVBoxLayout(m_details);
    details->setContentsMargins(kSectionGap, 0, 0, 0);
    details->setSpacing(2);
    m_pinnedEffect = AddOption(*details, {m_pinned},
                               "Die Zeilen, die beim Klick auf Suchen links gewählt sind, behalten "
                               "ihren Platz.");
    m_freeEffect = AddOption(*details, {m_free},
                             "Sonst bleiben Zeilen, die die Minen regeln, an ihrem Platz.");
    m_fromNowEffect = AddOption(*details, {m_fromNow},
                                "Plant nur den Rest neu. Damit nichts früher beginnt, bekommt der "
                                "neue Plan eine Pause in den Schlafzeiten.");
    m_sittingsEffect = AddOption(*details, {m_sittings, m_slack},
                                 "Was du binnen zehn Minuten anstößt, zählt als eine Sitzung.");
    AddOption(*details, {m_tries}, "Wie viele Listen die Suche durchspielt.")
        ->setText(QStringLiteral("Je mehr, desto gründlicher; zehnmal so viele dauern zehnmal so "
                                 "lang."));
    auto* const head = new QHBoxLayout;
    head->addWidget(m_fold);
    head->addWidget(m_summary, 1);
    head->addStretch();
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(head);
    layout->addWidget(m_details);
    connect(m_fold, &QToolButton::toggled, this, &SearchOptions::Unfold);
    for (QCheckBox* const option : {m_pinned, m_free, m_fromNow, m_sittings}) {
        connect(option, &QCheckBox::toggled, this, &SearchOptions::ShowEffects);
    }
    connect(m_slack, &QDoubleSpinBox::valueChanged, this, &SearchOptions::ShowEffects);
    connect(m_tries, &QSpinBox::valueChanged, this, &SearchOptions::ShowEffects);
    Unfold(false);
}

QLabel* SearchOptions::AddOption(QVBoxLayout& layout, std::initializer_list<QWidget*> inputs,
                                 const char* hint) {
    auto* const row = new QHBoxLayout;
    row->setSpacing(kControlGap);
    for (QWidget* const input : inputs) {
        input->setToolTip(QString::fromUtf8(hint));
        row->addWidget(input);
    }
    row->addStretch(1);
    QLabel* const effect = NewHint({}, m_details);
    effect->setIndent(kSectionGap + 4);
    layout.addLayout(row);
    layout.addWidget(effect);
    return effect;
}

void SearchOptions::Unfold(bool open) {
    m_fold->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    m_details->setVisible(open);
    m_summary->setVisible(!open);
    ShowEffects();
}

SearchRequest SearchOptions::Request() const {
    SearchRequest request{.moveProduction = m_free->isChecked()};
    if (m_pinned->isChecked()) {
        for (const std::size_t row : m_chosen()) {
            request.pinnedRanges.emplace_back(row + 1, row + 1);
        }
    }
    if (m_fromNow->isChecked()) {
        request.notBefore = m_now();
    }
    return request;
}

SearchBudget SearchOptions::Budget() const {
    // Leave one core for the windows.
    const unsigned cores = std::thread::hardware_concurrency();
    return {.tries = static_cast<std::uint64_t>(m_tries->value()),
            .threads = std::max(2U, cores) - 1,
            .slackPercent = m_sittings->isChecked() ? m_slack->value() : 0};
}

void SearchOptions::ShowEffects() {
    m_slack->setEnabled(m_sittings->isChecked());
    m_summary->setText(Summary());
    if (m_fold->isChecked()) {
        m_pinnedEffect->setText(PinnedEffect());
        m_freeEffect->setText(ProductionEffect());
        m_fromNowEffect->setText(FromNowEffect());
        m_sittingsEffect->setText(SittingsEffect());
    }
}

QString SearchOptions::PinnedEffect() const {
    const auto rows = m_chosen();
    if (rows.empty()) {
        return QStringLiteral("Wähle links Zeilen, dann bleiben sie an ihrem Platz.");
    }
    return (rows.size() == 1 ? QStringLiteral("Zeile %1 bleibt, wo sie ist.")
                             : QStringLiteral("Die Zeilen %1 bleiben, wo sie sind."))
        .arg(RowsText(rows));
}

QString SearchOptions::ProductionEffect() const {
    const auto count = ProductionRows(m_document);
    if (count == 0) {
        return QStringLiteral("Dieser Plan hat keine.");
    }
    return (count == 1 ? QStringLiteral("1 Zeile darf ihren Platz wechseln.")
                       : QStringLiteral("%1 Zeilen dürfen ihren Platz wechseln.").arg(count));
}

QString SearchOptions::FromNowEffect() const {
    const auto& trace = m_document.Trace();
    if (!trace) {
        return {};
    }
    const DateTime now = m_now();
    const auto begun = std::ranges::count_if(trace->starts, [&](const StartEvent& start) {
        return trace->conditions.WallClock(start.start) < now;
    });
    if (begun == 0) {
        return QStringLiteral("Der Plan hat noch nicht begonnen: es ändert nichts.");
    }
    if (begun == std::ssize(trace->starts)) {
        return QStringLiteral("Alles hat schon begonnen: zu suchen gibt es nichts.");
    }
    return begun == 1
               ? QStringLiteral("1 Auftrag hat begonnen und bleibt, wie er ist.")
               : QStringLiteral("%1 Aufträge haben begonnen und bleiben, wie sie sind.").arg(begun);
}

QString SearchOptions::SittingsEffect() const {
    const auto& trace = m_document.Trace();
    if (!trace) {
        return {};
    }
    const auto slack = HalfEvenLong(trace->Duration().Seconds() * m_slack->value() / kPercent);
    return QStringLiteral("%1 jetzt; der schnellste Plan darf %2 länger dauern.")
        .arg(ToQString(CountText(static_cast<std::size_t>(RunSummary::Of(*trace).sittings),
                                 "Sitzung", "Sitzungen")),
             ToQString(TimeSpanText(slack)));
}

QString SearchOptions::Summary() const {
    QString text = ToQString(GroupedText(m_tries->value())) + QStringLiteral(" Versuche");
    for (const auto& [option, words] :
         {std::pair(m_pinned, "gewählte Zeilen fest"),
          std::pair(m_free, "Produktionszeilen wandern"), std::pair(m_fromNow, "ab jetzt"),
          std::pair(m_sittings, "weniger Sitzungen")}) {
        text += option->isChecked() ? QStringLiteral(", ") + QString::fromUtf8(words) : QString();
    }
    if (!m_free->isChecked() && ProductionRows(m_document) > 0) {
        text += QStringLiteral(", Produktionszeilen bleiben");
    }
    return text;
}

}  // namespace tarvelin
