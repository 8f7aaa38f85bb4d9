// Watches mouse, focus and Enter ahead of the controls.
#include "ui/widgets/EnterKeyFilter.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPushButton>

namespace tarvelin {

namespace {

bool IsEnter(const QEvent& event) {
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool CameByTab(const QEvent& event) {
    const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}

}  // namespace

EnterKeyFilter::EnterKeyFilter(QAbstractButton* button) : QObject(button), m_button(button) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool EnterKeyFilter::eventFilter(QObject* target, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            m_belongsToButton = m_belongsToButton || IsInWindow(target);
            break;
        case QEvent::FocusIn:
            m_belongsToButton = m_belongsToButton && !(IsInWindow(target) && CameByTab(*event));
            break;
        case QEvent::KeyPress:
            // Other controls pass the key on to the window, which handles it.
            if (m_belongsToButton && IsEnter(*event) && IsInWindow(target) &&
                qobject_cast<QPushButton*>(target) != nullptr) {
                m_button->click();
                return true;
            }
            break;
        default:
            break;
    }
    return QObject::eventFilter(target, event);
}

bool EnterKeyFilter::IsInWindow(const QObject* target) const {
    const auto* const widget = qobject_cast<const QWidget*>(target);
    return widget != nullptr && widget->window() == m_button->window();
}

}  // namespace tarvelin
