// Layout and texts of the panel.
#include "ui/workbench/FindPanel.h"

#include <QHBoxLayout>
#include <algorithm>
#include <cstdlib>

#include "simulation/RunTexts.h"
#include "ui/look/Icons.h"
#include "ui/look/WaitLook.h"
#include "ui/widgets/Controls.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr std::size_t kShownRows = 10;
constexpr int kPicture = 18;
constexpr int kSymbol = 12;
enum Column { kNumber, kNow, kFind };

QString Changed(const QString& before, const QString& after) {
    return QStringLiteral("%1 → <b>%2</b>").arg(before, after);
}

QPixmap SymbolPixmap(const QWidget& widget, Symbol symbol, Color color, int side) {
    return SymbolIcon(symbol, color, ColorsFor(widget.palette()))
        .pixmap(QSize(side, side), widget.devicePixelRatioF());
}

}  // namespace

FindPanel::FindPanel(QWidget* parent)
    : QWidget(parent),
      m_gainSymbol(new QLabel(this)),
      m_gain(new TypeLabel({}, TypeSize::Figure, true, this)),
      m_details(new QWidget(this)),
      m_durations(NewLabel(QStringLiteral("LBL_Funddauer"), {}, m_details)),
      m_sittings(NewLabel(QStringLiteral("LBL_Fundsitzungen"), {}, m_details)),
      m_fewer(new ItemCounts(QStringLiteral("Fällt weg"), m_details)),
      m_more(new ItemCounts(QStringLiteral("Kommt dazu"), m_details)),
      m_verdict(NewLabel(QStringLiteral("LBL_Fundertrag"), {}, m_details)),
      m_caption(NewHint(QStringLiteral("Die ersten Zeilen, die anders sind"), m_details)),
      m_rows(new TableModel(
          {QStringLiteral("Nr."), QStringLiteral("jetzt"), QStringLiteral("im Fund")},
          {.rows = [this] { return std::min(kShownRows, m_find.rows.size()); },
           .text =
               [this](std::size_t row, int column) {
                   if (column == kNumber) {
                       return QString::number(m_find.rows[row].row + 1);
                   }
                   const auto& side = SideOf(row, column);
                   return side ? ToQString(side->text) : QString();
               },
           .picture =
               [this](std::size_t row, int column) {
                   const auto& side = SideOf(row, column);
                   return column != kNumber && side && side->order.kind == Order::Kind::Item
                              ? m_pictures[side->order.item]
                              : QPixmap();
               }},
          this)),
      m_table(new ListView(QStringLiteral("LV_Fund"), QStringLiteral("Was der Fund ändert"),
                           {3, 12, 12}, m_details)),
      m_compareButton(new QPushButton(QStringLiteral("&Mit Fund vergleichen"), m_details)),
      m_acceptButton(new MainButton(QStringLiteral("Über&nehmen"), m_details)) {
    m_gain->setObjectName(QStringLiteral("LBL_Gewinn"));
    auto* const details = new QVBoxLayout(m_details);
    details->setContentsMargins({});
    details->setSpacing(4);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(4);
    AddGain(*layout);
    layout->addWidget(m_details);
    auto* const figures = new QHBoxLayout;
    for (QLabel* const label : {m_durations, m_sittings, m_verdict}) {
        label->setTextFormat(Qt::RichText);
    }
    figures->addWidget(m_durations, 1);
    figures->addWidget(m_sittings);
    details->addLayout(figures);
    details->addWidget(m_fewer);
    details->addWidget(m_more);
    AddRates(*details);
    // In sight even where the table isn't.
    AddButtons(*details);
    AddTable(*details);
    m_durations->setWordWrap(true);
    ShowNothing({});
}

void FindPanel::AddGain(QVBoxLayout& layout) {
    auto* const row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(m_gainSymbol);
    row->addWidget(m_gain, 1);
    m_gain->setWordWrap(true);
    layout.addLayout(row);
}

void FindPanel::AddRates(QVBoxLayout& layout) {
    auto* const head = new QHBoxLayout;
    head->addWidget(NewHint(QStringLiteral("Je Stunde"), m_details), 1);
    head->addWidget(m_verdict);
    layout.addLayout(head);
    auto* const row = new QHBoxLayout;
    row->setSpacing(4);
    for (const Resource resource : kResources) {
        m_rateSymbols[resource] = new QLabel(m_details);
        m_rates[resource] = new QLabel(m_details);
        m_rates[resource]->setTextFormat(Qt::RichText);
        row->addWidget(m_rateSymbols[resource]);
        row->addWidget(m_rates[resource], 1);
    }
    layout.addLayout(row);
}

void FindPanel::AddTable(QVBoxLayout& layout) {
    layout.addWidget(m_caption);
    m_table->setModel(m_rows);
    m_table->setIconSize(QSize(kPicture, kPicture));
    m_table->setTextElideMode(Qt::ElideRight);
    m_table->setAlternatingRowColors(true);
    m_table->setFocusPolicy(Qt::TabFocus);
    layout.addWidget(m_table);
}

void FindPanel::AddButtons(QVBoxLayout& layout) {
    m_compareButton->setObjectName(QStringLiteral("Cmd_MitFund"));
    m_compareButton->setToolTip(
        QStringLiteral("Zeigt unter Vergleich, was im Fund früher und später kommt"));
    m_acceptButton->setObjectName(QStringLiteral("Cmd_Uebernehmen"));
    m_acceptButton->setToolTip(
        QStringLiteral("Setzt den Fund in den Plan; ein Schritt zurück nimmt ihn zurück"));
    connect(m_compareButton, &QPushButton::clicked, this, &FindPanel::CompareWanted);
    connect(m_acceptButton, &QPushButton::clicked, this, &FindPanel::AcceptWanted);
    auto* const row = new QHBoxLayout;
    row->setSpacing(kControlGap);
    row->addWidget(m_compareButton, 1);
    row->addWidget(m_acceptButton, 1);
    layout.addLayout(row);
}

const std::optional<ListedOrder>& FindPanel::SideOf(std::size_t row, int column) const {
    const DifferentRow& different = m_find.rows[row];
    return column == kNow ? different.now : different.find;
}

void FindPanel::SetPictures(const PerItem<QPixmap>& pictures) {
    m_pictures = pictures;
    m_fewer->SetPictures(pictures);
    m_more->SetPictures(pictures);
    m_rows->Refresh();
}

void FindPanel::FollowAppearance() {
    for (const Resource resource : kResources) {
        const WaitLook look = LookOf(resource);
        m_rateSymbols[resource]->setPixmap(
            SymbolPixmap(*this, look.symbol, look.symbolColor, kSymbol));
    }
    FitTable();
    ShowGain();
    ShowRates();
}

void FindPanel::ShowNothing(const QString& why) {
    m_find = {};
    m_why = why;
    m_details->hide();
    EnableButtons();
    ShowGain();
    m_rows->Refresh();
}

void FindPanel::EnableButtons() {
    m_compareButton->setEnabled(m_find.DiffersFromPlan());
    m_acceptButton->setEnabled(m_find.DiffersFromPlan());
}

void FindPanel::ShowFind(const FindSummary& find) {
    m_find = find;
    m_why = QStringLiteral("Die Suche kennt keine schnellere Liste.");
    ShowGain();
    ShowRates();
    const auto& before = find.before;
    const QString duration = ToQString(TimeSpanText(find.after.duration));
    const QString sittings = QString::number(find.after.sittings);
    m_durations->setText(
        Changed(before ? ToQString(TimeSpanText(before->duration)) : QStringLiteral("bisher nie"),
                duration));
    m_sittings->setText(QStringLiteral("Sitzungen ") +
                        (before ? Changed(QString::number(before->sittings), sittings)
                                : QStringLiteral("<b>%1</b>").arg(sittings)));
    PerItem<int> fewer{};
    std::ranges::transform(find.more, fewer.begin(), std::negate<>());
    m_fewer->ShowCounts(fewer);
    m_more->ShowCounts(find.more);
    m_rows->Refresh();
    EnableButtons();
    for (QWidget* const part : std::initializer_list<QWidget*>{m_caption, m_table}) {
        part->setVisible(find.DiffersFromPlan());
    }
    FitTable();
    m_details->show();
}

void FindPanel::FitTable() {
    if (m_find.DiffersFromPlan()) {
        // All rows that it may have, so nothing below moves.
        constexpr int kFrames = 4;
        m_table->setFixedHeight(m_table->header()->sizeHint().height() +
                                static_cast<int>(kShownRows) * m_table->sizeHintForRow(0) +
                                kFrames);
    }
}

void FindPanel::ShowGain() {
    const auto gain = m_find.Gain();
    if (!m_find.DiffersFromPlan()) {
        Headline(m_why, Color::Text, {});
    } else if (!gain) {
        Headline(QStringLiteral("Eine Liste, die das Ziel erreicht"), Color::Gain, {});
    } else if (*gain == 0) {
        Headline(QStringLiteral("gleich schnell"), Color::Weak, {});
    } else {
        const QString span = ToQString(TimeSpanText(std::abs(*gain)));
        if (*gain > 0) {
            Headline(span + QStringLiteral(" schneller"), Color::Gain, Symbol::Falls);
        } else {
            Headline(span + QStringLiteral(" langsamer"), Color::Deficit, Symbol::Rises);
        }
    }
}

void FindPanel::Headline(const QString& text, Color color, std::optional<Symbol> symbol) {
    m_gain->setText(text);
    QPalette own = palette();
    own.setColor(QPalette::WindowText, ColorsFor(palette())[color]);
    m_gain->setPalette(own);
    m_gainSymbol->setVisible(symbol.has_value());
    if (symbol) {
        m_gainSymbol->setPixmap(SymbolPixmap(*this, *symbol, color, kSymbol));
    }
}

void FindPanel::ShowRates() {
    const WorkbenchColors colors = ColorsFor(palette());
    const auto colored = [&](Color color, const QString& text) {
        return QStringLiteral("<span style='color:%1'>%2</span>").arg(colors[color].name(), text);
    };
    std::int64_t sum = 0;
    for (const Resource resource : kResources) {
        const std::int64_t rate = m_find.after.rates[resource];
        const std::int64_t change = m_find.before ? rate - m_find.before->rates[resource] : 0;
        sum += change;
        const auto grouped = [](std::int64_t number) {
            return ToQString(GroupedText(static_cast<double>(number)));
        };
        const QString difference = grouped(std::abs(change));
        QString text = grouped(rate);
        QString spoken = ToQString(kResourceNames[resource]) + QStringLiteral(" ") + text;
        if (change != 0) {
            text += QStringLiteral(" ") +
                    colored(change > 0 ? Color::Gain : Color::Deficit,
                            (change > 0 ? QStringLiteral("▴") : QStringLiteral("▾")) + difference);
            spoken += QStringLiteral(", %1 %2").arg(
                difference, change > 0 ? QStringLiteral("mehr") : QStringLiteral("weniger"));
        }
        m_rates[resource]->setAccessibleName(spoken);
        m_rates[resource]->setText(text);
    }
    m_verdict->setText(sum == 0  ? QString()
                       : sum > 0 ? colored(Color::Gain, QStringLiteral("stärker"))
                                 : colored(Color::Deficit, QStringLiteral("schwächer")));
}

}  // namespace tarvelin
