#include "qt/QtMenuBar.h"

#include "qt/KeyboardFocus.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QStyleOptionMenuItem>
#include <QWindow>

#include <utility>

namespace tessarin::qt {

QtMenuBar::QtMenuBar(QWidget& window, KeyboardFocus& focus) : QMenuBar(&window), mFocus(focus) {
    setNativeMenuBar(false);
    qApp->installEventFilter(this);
}

// Watches the window instead of its widgets: QMenuBar itself overlooks a tap on Alt if the focus
// moves between press and release, as it does during a solve.
bool QtMenuBar::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver != window()->windowHandle()) return false;
    switch (event->type()) {
    case QEvent::KeyPress:
        return Pressed(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt &&
            std::exchange(mbAltAlone, false))
            Toggle();
        // QMenuBar keeps the focus if the control that had it before is disabled or hidden by now.
        if (hasFocus() && activeAction() == nullptr) mFocus.ToGrid();
        return false;
    case QEvent::MouseButtonPress:
        if (hasFocus() && !underMouse()) Toggle();
        [[fallthrough]];
    case QEvent::FocusOut: // to another window
        mbAltAlone = false;
        return false;
    default:
        return false;
    }
}

bool QtMenuBar::Pressed(const QKeyEvent& key) {
    mbAltAlone = key.key() == Qt::Key_Alt && QApplication::activePopupWidget() == nullptr;
    if (QApplication::activePopupWidget() != nullptr) return false;
    if (key.key() == Qt::Key_F10 && key.modifiers() == Qt::NoModifier) {
        if (!key.isAutoRepeat()) Toggle();
        return true;
    }
    return (hasFocus() || key.modifiers() == Qt::AltModifier) && Open(key.text());
}

bool QtMenuBar::Open(const QString& letter) {
    if (letter.isEmpty()) return false;
    for (QAction* const title : actions())
        if (title->isEnabled() && title->text().startsWith(letter, Qt::CaseInsensitive)) {
            setActiveAction(title);
            QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier); // to the first entry
            if (title->menu()->isVisible()) QApplication::sendEvent(title->menu(), &down);
            return true;
        }
    return false;
}

// Makes QMenuBar believe in a tap on Alt. It would start from the title under the pointer.
void QtMenuBar::Toggle() {
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(this, &leave);
    QKeyEvent press(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier); // before it is down
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
    QMenuBar::eventFilter(this, &press);
    QMenuBar::eventFilter(this, &release); // takes this filter away
    qApp->installEventFilter(this);
}

// The style highlights only titles whose menu is open.
void QtMenuBar::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const {
    QMenuBar::initStyleOption(option, action);
    if (hasFocus() && action == activeAction()) option->state |= QStyle::State_Sunken;
}

} // namespace tessarin::qt
