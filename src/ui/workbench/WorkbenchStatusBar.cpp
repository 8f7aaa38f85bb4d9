// Places and texts of the status bar.
#include "ui/workbench/WorkbenchStatusBar.h"

#include <QAccessible>
#include <QHBoxLayout>

#include "search/SearchTexts.h"
#include "simulation/Comparison.h"
#include "simulation/ResultTexts.h"
#include "simulation/RunTexts.h"
#include "simulation/StatusTexts.h"
#include "ui/look/Icons.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

constexpr int kSymbol = 14;
constexpr int kGap = 8;

void SetSymbol(QLabel& label, std::optional<Symbol> symbol, Color color) {
    label.setPixmap(symbol ? SymbolIcon(*symbol, color, ColorsFor(label.window()->palette()))
                                 .pixmap(QSize(kSymbol, kSymbol), label.devicePixelRatioF())
                           : QPixmap());
}

void SetColor(QLabel& label, Color color) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, ColorsFor(label.window()->palette())[color]);
    label.setPalette(palette);
}

void SetBold(QLabel& label, const QFont& font) {
    QFont bold = font;
    bold.setBold(true);
    label.setFont(bold);
}

}  // namespace

WorkbenchStatusBar::WorkbenchStatusBar(QWidget* parent)
    : QStatusBar(parent),
      m_place(new QFrame(this)),
      m_symbol(new QLabel(m_place)),
      m_titleLabel(NewLabel(QStringLiteral("LBL_Meldungstitel"), {}, m_place)),
      m_message(NewLabel(QStringLiteral("LBL_Meldung"), {}, m_place)),
      m_button(new QPushButton(m_place)),
      m_durationCaption(new QLabel(QStringLiteral("Dauer"), this)),
      m_duration(NewLabel(QStringLiteral("LBL_Dauer"), {}, this)),
      m_changeSymbol(new QLabel(this)),
      m_change(NewLabel(QStringLiteral("LBL_Aenderung"), {}, this)),
      m_sittings(NewLabel(QStringLiteral("LBL_Sitzungen"), {}, this)),
      m_points(NewLabel(QStringLiteral("LBL_Planpunkte"), {}, this)),
      m_end(NewLabel(QStringLiteral("LBL_Ende"), {}, this)) {
    m_message->setAccessibleDescription(QStringLiteral("Meldung"));
    m_duration->setAccessibleDescription(QStringLiteral("Dauer des Plans"));
    m_change->setAccessibleDescription(QStringLiteral("Änderung der Dauer"));
    // However long a message is, the window doesn't follow it.
    m_message->setMinimumWidth(1);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_message->setTextFormat(Qt::PlainText);
    m_button->setObjectName(QStringLiteral("Cmd_Hinweis"));
    connect(m_button, &QPushButton::clicked, this, &WorkbenchStatusBar::RequestAccepted);
    auto* const layout = new QHBoxLayout(m_place);
    layout->setContentsMargins(kGap, 0, kGap, 0);
    layout->setSpacing(kGap);
    layout->addWidget(m_symbol);
    layout->addWidget(m_titleLabel);
    layout->addWidget(m_message, 1);
    layout->addWidget(m_button);
    addWidget(m_place, 1);
    AddFigure({m_durationCaption, m_duration, m_changeSymbol, m_change});
    for (QLabel* const figure : {m_sittings, m_points, m_end}) {
        AddFigure({figure});
    }
    setSizeGripEnabled(false);
    FollowAppearance();
}

// Behind a line.
void WorkbenchStatusBar::AddFigure(std::initializer_list<QLabel*> parts) {
    auto* const figure = new QWidget(this);
    auto* const line = new QFrame(figure);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    auto* const layout = new QHBoxLayout(figure);
    layout->setContentsMargins(0, 4, kGap, 4);
    layout->setSpacing(kGap / 2);
    layout->addWidget(line);
    layout->addSpacing(kGap / 2);
    for (QLabel* const part : parts) {
        layout->addWidget(part);
    }
    addPermanentWidget(figure);
}

void WorkbenchStatusBar::FollowAppearance() {
    constexpr int kHeight = 28;
    setFixedHeight(std::max(kHeight, m_button->sizeHint().height() + 4));
    SetBold(*m_duration, font());
    SetBold(*m_titleLabel, font());
    ShowOrRequest();
}

void WorkbenchStatusBar::ShowMessage(const std::string& text) {
    Show(Tone::Info, {}, ToQString(text).trimmed());
}

void WorkbenchStatusBar::ShowRefusal(const QString& what, const std::string& why) {
    Show(Tone::Refusal, what, ToQString(why).trimmed());
}

void WorkbenchStatusBar::ShowRequest(const std::optional<Request>& request) {
    if (m_request != request) {
        m_request = request;
        ShowOrRequest();
    }
}

void WorkbenchStatusBar::Show(Tone tone, const QString& title, const QString& text) {
    m_tone = tone;
    m_title = title;
    m_text = text;
    ShowOrRequest();
    if (!text.isEmpty()) {
        // Screen readers read it at once, wherever the focus is.
        QAccessibleEvent alert(m_message, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void WorkbenchStatusBar::ShowOrRequest() {
    struct Look {
        Symbol symbol;
        Color color;
        Color ground;
    };
    const bool asks = m_text.isEmpty() && m_request;
    const auto look = [&]() -> Look {
        if (asks) {
            return {Symbol::Sleep, Color::WarnText, Color::WarnTint};
        }
        return m_tone == Tone::Refusal ? Look{Symbol::Cross, Color::Deficit, Color::Toolbar}
                                       : Look{Symbol::Info, Color::Accent, Color::Toolbar};
    }();
    QPalette palette = m_place->palette();
    palette.setColor(QPalette::Window, ColorsFor(window()->palette())[look.ground]);
    m_place->setPalette(palette);
    m_place->setAutoFillBackground(asks);
    const bool anything = asks || !m_text.isEmpty();
    SetSymbol(*m_symbol, anything ? std::optional(look.symbol) : std::nullopt, look.color);
    const Color text = look.color == Color::Accent ? Color::Text : look.color;
    SetColor(*m_titleLabel, text);
    SetColor(*m_message, text);
    m_titleLabel->setText(asks ? m_request->title : m_title);
    m_titleLabel->setVisible(!m_titleLabel->text().isEmpty());
    m_button->setVisible(asks);
    m_button->setText(asks ? m_request->button : QString());
    Elide();
}

void WorkbenchStatusBar::Elide() {
    const QString whole = m_text.isEmpty() && m_request ? m_request->text : m_text;
    QString line = whole;
    line.replace(QLatin1Char('\n'), QStringLiteral("  ·  "));
    m_place->layout()->activate();
    m_message->setText(
        m_message->fontMetrics().elidedText(line, Qt::ElideRight, m_message->width()));
    m_message->setAccessibleName(whole);
    SetHint(*m_message, m_message->text() == line ? QString() : whole);
}

void WorkbenchStatusBar::resizeEvent(QResizeEvent* event) {
    QStatusBar::resizeEvent(event);
    Elide();
}

void WorkbenchStatusBar::ShowFigures(const Document& document) {
    const auto& trace = document.Trace();
    const auto show = [&](QLabel& label, const std::string& text) {
        label.setText(ToQString(text));
        QWidget* const figure = label.parentWidget();
        (figure == m_duration->parentWidget() ? &label : figure)->setVisible(!text.empty());
    };
    m_duration->setText(trace ? ToQString(TimeSpanText(trace->Duration().Seconds()))
                              : QStringLiteral("–"));
    const auto change = document.DurationChange();
    const Long seconds = change.value_or(0);
    show(*m_change, !change        ? ""
                    : seconds == 0 ? SignedTimeSpanText(0)
                                   : TimeSpanText(std::abs(seconds)));
    m_change->setAccessibleName(m_change->text() + QString::fromUtf8(seconds < 0   ? " schneller"
                                                                     : seconds > 0 ? " langsamer"
                                                                                   : ""));
    const Color color = seconds < 0 ? Color::Gain : seconds > 0 ? Color::Deficit : Color::Weak;
    SetColor(*m_change, color);
    SetSymbol(
        *m_changeSymbol,
        seconds == 0 ? std::nullopt : std::optional(seconds < 0 ? Symbol::Falls : Symbol::Rises),
        color);
    m_changeSymbol->setVisible(seconds != 0);
    show(*m_sittings, trace ? CountText(static_cast<std::size_t>(RunSummary::Of(*trace).sittings),
                                        "Sitzung", "Sitzungen")
                            : "");
    show(*m_points, trace ? PointsText(trace->end) + " Punkte" : "");
    const auto start = ReadUniStartZeit(document.CurrentPlan().parameters);
    show(*m_end, trace ? "Ende " + ShortDateTimeText(trace->conditions.WallClock(trace->Duration()))
                 : start ? "Start " + ShortDateTimeText(*start)
                         : "");
}

}  // namespace tarvelin
