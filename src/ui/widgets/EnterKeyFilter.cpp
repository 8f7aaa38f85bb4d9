// Mouse, focus and Enter, seen before the controls see them.
#include "ui/widgets/EnterKeyFilter.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPushButton>

namespace tarvelin {

namespace {

bool IstEnter(const QEvent& event) {
    const int taste = static_cast<const QKeyEvent&>(event).key();
    return taste == Qt::Key_Return || taste == Qt::Key_Enter;
}

bool KamMitTab(const QEvent& event) {
    const Qt::FocusReason grund = static_cast<const QFocusEvent&>(event).reason();
    return grund == Qt::TabFocusReason || grund == Qt::BacktabFocusReason;
}

}  // namespace

Entertaste::Entertaste(QAbstractButton* knopf) : QObject(knopf), m_knopf(knopf) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool Entertaste::eventFilter(QObject* ziel, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            m_gehoertDemKnopf = m_gehoertDemKnopf || IstImFenster(ziel);
            break;
        case QEvent::FocusIn:
            m_gehoertDemKnopf = m_gehoertDemKnopf && !(IstImFenster(ziel) && KamMitTab(*event));
            break;
        case QEvent::KeyPress:
            // Other controls hand the key on to the window, which knows its default button.
            if (m_gehoertDemKnopf && IstEnter(*event) && IstImFenster(ziel) &&
                qobject_cast<QPushButton*>(ziel) != nullptr) {
                m_knopf->click();
                return true;
            }
            break;
        default:
            break;
    }
    return QObject::eventFilter(ziel, event);
}

bool Entertaste::IstImFenster(const QObject* ziel) const {
    const auto* const widget = qobject_cast<const QWidget*>(ziel);
    return widget != nullptr && widget->window() == m_knopf->window();
}

}  // namespace tarvelin
