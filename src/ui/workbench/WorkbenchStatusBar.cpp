// Places and texts of the status bar.
#include "ui/workbench/WorkbenchStatusBar.h"

#include <QAccessible>

#include "search/SearchTexts.h"
#include "simulation/ResultTexts.h"
#include "simulation/RunTexts.h"
#include "simulation/Sittings.h"
#include "simulation/StatusTexts.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

int SittingsOf(const RunTrace& trace) {
    SittingCounter counter;
    for (const StartEvent& start : trace.starts) {
        counter.Add(start.start);
    }
    return counter.count;
}

}  // namespace

WorkbenchStatusBar::WorkbenchStatusBar(QWidget* parent)
    : QStatusBar(parent),
      m_message(NewLabel(QStringLiteral("LBL_Meldung"), {}, this)),
      m_duration(NewLabel(QStringLiteral("LBL_Dauer"), {}, this)),
      m_change(NewLabel(QStringLiteral("LBL_Aenderung"), {}, this)),
      m_sittings(NewLabel(QStringLiteral("LBL_Sitzungen"), {}, this)),
      m_points(NewLabel(QStringLiteral("LBL_Planpunkte"), {}, this)),
      m_end(NewLabel(QStringLiteral("LBL_Ende"), {}, this)) {
    m_message->setAccessibleDescription(QStringLiteral("Meldung"));
    m_change->setAccessibleDescription(QStringLiteral("Änderung der Dauer"));
    // However long a message is, the window doesn't follow it.
    m_message->setMinimumWidth(1);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(m_message, 1);
    for (QLabel* const figure : {m_duration, m_change, m_sittings, m_points, m_end}) {
        figure->setTextInteractionFlags(Qt::TextSelectableByMouse);
        addPermanentWidget(figure);
    }
    setSizeGripEnabled(false);
}

void WorkbenchStatusBar::ShowMessage(const std::string& text) {
    m_text = ToQString(text).trimmed();
    Elide();
    if (!text.empty()) {
        // Screen readers read it at once, wherever the focus is.
        QAccessibleEvent alert(m_message, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void WorkbenchStatusBar::Elide() {
    QString line = m_text;
    line.replace(QLatin1Char('\n'), QStringLiteral("  ·  "));
    m_message->setText(
        m_message->fontMetrics().elidedText(line, Qt::ElideRight, m_message->width()));
    m_message->setAccessibleName(m_text);
    SetHint(*m_message, m_message->text() == line ? QString() : m_text);
}

void WorkbenchStatusBar::resizeEvent(QResizeEvent* event) {
    QStatusBar::resizeEvent(event);
    Elide();
}

void WorkbenchStatusBar::ShowFigures(const Document& document) {
    const auto& trace = document.Trace();
    const auto show = [&](QLabel& label, const std::string& text) {
        label.setText(trace ? ToQString(text) : QString());
        label.setVisible(trace.has_value());
    };
    m_duration->setText(QStringLiteral("Dauer: ") +
                        (trace ? ToQString(DurationText(trace->end)) : QStringLiteral("-")));
    const auto change = document.DurationChange();
    m_change->setText(change ? ToQString(SignedTimeSpanText(*change)) : QString());
    show(*m_sittings,
         trace ? CountText(static_cast<std::size_t>(SittingsOf(*trace)), "Sitzung", "Sitzungen")
               : "");
    show(*m_points, trace ? PointsText(trace->end) + " Punkte" : "");
    show(*m_end,
         trace ? "Ende " + ShortDateTimeText(trace->conditions.WallClock(trace->Duration())) : "");
}

}  // namespace tarvelin
