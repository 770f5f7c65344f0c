// SPDX-License-Identifier: MIT
#include "qt/KeyWatch.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>

namespace tessarin::qt {

namespace {

bool MenuOrBoxIsOpen() {
    if (QApplication::activePopupWidget() != nullptr) return true;
    if (QApplication::activeModalWidget() != nullptr) return true;
    // Without the focus, a title is active only because the pointer rests on it.
    const auto* const menuBar = qobject_cast<QMenuBar*>(QApplication::focusWidget());
    return menuBar != nullptr && menuBar->activeAction() != nullptr;
}

bool MayRepeat(int key) {
    const bool isArrow = key >= Qt::Key_Left && key <= Qt::Key_Down;
    if (isArrow || key == Qt::Key_Tab || key == Qt::Key_Backtab) return true;
    return key != Qt::Key_Escape &&
           qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr;
}

} // namespace

KeyWatch::KeyWatch() {
    qApp->installEventFilter(this);
}

bool KeyWatch::eventFilter(QObject* receiver, QEvent* event) {
    // A key event reaches the window exactly once, but its widgets any number of times.
    if (!receiver->isWindowType()) return false;
    if (event->type() == QEvent::KeyPress)
        return Press(*receiver, static_cast<const QKeyEvent&>(*event));
    if (event->type() == QEvent::KeyRelease) Release(static_cast<const QKeyEvent&>(*event));
    return false;
}

void KeyWatch::Release(const QKeyEvent& key) {
    mlReleased = key.key();
    mlReleaseTime = key.timestamp();
}

// X11 sends a repeat as a release and a press with the same time. Qt marks it only if both have
// arrived when it looks. A press without a release before it need not be a repeat: the release is
// lost if a box opens or closes while the key is down.
bool KeyWatch::Press(const QObject& window, const QKeyEvent& key) {
    const bool isPair = key.key() == mlReleased && key.timestamp() == mlReleaseTime;
    if (key.isAutoRepeat() || isPair) return mPressedIn != &window || !MayRepeat(key.key());
    mPressedIn = &window;
    if (key.key() == Qt::Key_Escape && !MenuOrBoxIsOpen()) mbEscPressed = true;
    return false;
}

} // namespace tessarin::qt
