// Letters that entries of the menu bar share.
#include "ui/mainwindow/MenuBar.h"

#include <QAction>
#include <QCoreApplication>
#include <QShortcutEvent>

namespace tarvelin {

namespace {

QList<QAction*> MitBuchstabe(const QList<QAction*>& eintraege, const QKeySequence& taste) {
    QList<QAction*> treffer;
    for (QAction* const eintrag : eintraege) {
        if (QKeySequence::mnemonic(eintrag->text()) == taste) {
            treffer.append(eintrag);
        }
    }
    return treffer;
}

}  // namespace

Menueleiste::Menueleiste(QWidget* parent) : QMenuBar(parent) {
    // A bar of the desktop would know nothing of entries without a menu.
    setNativeMenuBar(false);
    // A click anywhere else ends the walk by keys.
    QCoreApplication::instance()->installEventFilter(this);
}

bool Menueleiste::event(QEvent* event) {
    if (event->type() == QEvent::Shortcut) {
        const auto* const taste = static_cast<const QShortcutEvent*>(event);
        const QList<QAction*> treffer = MitBuchstabe(actions(), taste->key());
        if (treffer.size() > 1) {
            if (!hasFocus()) {
                m_vorher = window()->focusWidget();
            }
            setFocus(Qt::MenuBarFocusReason);
            setActiveAction(treffer[(treffer.indexOf(activeAction()) + 1) % treffer.size()]);
            return true;
        }
    }
    return QMenuBar::event(event);
}

void Menueleiste::keyPressEvent(QKeyEvent* event) {
    QMenuBar::keyPressEvent(event);
    if (activeAction() == nullptr) {
        GibFokusZurueck();
    }
}

bool Menueleiste::eventFilter(QObject* ziel, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress && ziel != this && hasFocus()) {
        setActiveAction(nullptr);
        GibFokusZurueck();
    }
    return QMenuBar::eventFilter(ziel, event);
}

void Menueleiste::GibFokusZurueck() {
    if (hasFocus() && m_vorher != nullptr && m_vorher->isVisible()) {
        m_vorher->setFocus(Qt::MenuBarFocusReason);
    } else if (hasFocus()) {
        clearFocus();
    }
}

}  // namespace tarvelin
