#include "qt/EscWatch.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>

#include <algorithm>

namespace tessarin::qt {

namespace {

bool MenuOrBoxIsOpen() {
    if (QApplication::activePopupWidget() != nullptr) return true;
    if (QApplication::activeModalWidget() != nullptr) return true;
    const auto windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
        const auto* menuBar = window->findChild<QMenuBar*>();
        // Without the focus, a title is active only because the pointer rests on it.
        return menuBar != nullptr && window->focusWidget() == menuBar &&
               menuBar->activeAction() != nullptr;
    });
}

} // namespace

EscWatch::EscWatch() {
    qApp->installEventFilter(this);
    // If ESC is down now, its release may go to another program.
    connect(qApp, &QApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive) mbHeld = mbDown = false;
    });
}

bool EscWatch::Query() {
    const bool counts = mbDown || mbPressed;
    mbPressed = false;
    return counts;
}

bool EscWatch::eventFilter(QObject* receiver, QEvent* event) {
    // A key event reaches the window exactly once, but its widgets any number of times.
    if (!receiver->isWindowType()) return false;
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Escape) return false;
    if (event->type() == QEvent::KeyPress) return Press(key->timestamp(), key->isAutoRepeat());
    if (!key->isAutoRepeat()) {
        mbHeld = mbDown = false;
        mReleased = key->timestamp();
    }
    return false;
}

bool EscWatch::Press(quint64 time, bool repeat) {
    // When another window gets the focus while the key is down, X11 sends it a release and then a
    // press that is not marked as a repeat. Both come at the same time.
    const bool followsRelease = time != 0 && mReleased != 0 && time - mReleased <= 1;
    const bool repeated = repeat || mbHeld || followsRelease;
    mbHeld = true;
    if (!repeated && !MenuOrBoxIsOpen()) mbDown = mbPressed = true;
    return repeated;
}

} // namespace tessarin::qt
