// Handles shared letters and gives the focus back.
#include "ui/mainwindow/MenuBar.h"

#include <QAction>
#include <QCoreApplication>
#include <QShortcutEvent>

namespace tarvelin {

namespace {

QList<QAction*> WithLetter(const QList<QAction*>& entries, const QKeySequence& key) {
    QList<QAction*> hits;
    for (QAction* const entry : entries) {
        if (QKeySequence::mnemonic(entry->text()) == key) {
            hits.append(entry);
        }
    }
    return hits;
}

}  // namespace

MenuBar::MenuBar(QWidget* parent) : QMenuBar(parent) {
    // The desktop's menu bar wouldn't show entries without a menu.
    setNativeMenuBar(false);
    // A click anywhere else ends keyboard selection.
    QCoreApplication::instance()->installEventFilter(this);
}

bool MenuBar::event(QEvent* event) {
    if (event->type() == QEvent::Shortcut) {
        const auto* const key = static_cast<const QShortcutEvent*>(event);
        const QList<QAction*> hits = WithLetter(actions(), key->key());
        if (hits.size() > 1) {
            if (!hasFocus()) {
                m_focusBefore = window()->focusWidget();
            }
            setFocus(Qt::MenuBarFocusReason);
            setActiveAction(hits[(hits.indexOf(activeAction()) + 1) % hits.size()]);
            return true;
        }
    }
    return QMenuBar::event(event);
}

void MenuBar::keyPressEvent(QKeyEvent* event) {
    QMenuBar::keyPressEvent(event);
    if (activeAction() == nullptr) {
        RestoreFocus();
    }
}

bool MenuBar::eventFilter(QObject* target, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress && target != this && hasFocus()) {
        setActiveAction(nullptr);
        RestoreFocus();
    }
    return QMenuBar::eventFilter(target, event);
}

void MenuBar::RestoreFocus() {
    if (hasFocus() && m_focusBefore != nullptr && m_focusBefore->isVisible()) {
        m_focusBefore->setFocus(Qt::MenuBarFocusReason);
    } else if (hasFocus()) {
        clearFocus();
    }
}

}  // namespace tarvelin
