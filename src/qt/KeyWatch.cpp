#include "qt/KeyWatch.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>

namespace tessarin::qt {

namespace {

constexpr quint64 LongestRepeatDelay = 1000; // in milliseconds

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
    // The release of a key that is down now may go to another program.
    connect(qApp, &QApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) return;
        mlHeld = 0;
        mbEscDown = false;
    });
}

bool KeyWatch::eventFilter(QObject* receiver, QEvent* event) {
    // A key event reaches the window exactly once, but its widgets any number of times.
    if (!receiver->isWindowType()) return false;
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (event->type() == QEvent::KeyPress) return Press(*receiver, key);
    if (key.isAutoRepeat()) return false;
    mlHeld = 0;
    mlReleased = key.key();
    mlReleaseTime = key.timestamp();
    if (mlReleased == Qt::Key_Escape) mbEscDown = false;
    return false;
}

// X11 sends repeats as pairs of a release and a press with the same time. Qt does not mark them
// when it has read the release before the press has come, or when the focus has changed. But a
// release can also be lost, to a window behind a box that has just opened: a press of the same key
// that comes late is a new one.
bool KeyWatch::Press(const QObject& window, const QKeyEvent& key) {
    const bool hasTimes = mlReleaseTime != 0 && key.timestamp() != 0;
    const bool isPair = hasTimes && key.timestamp() - mlReleaseTime <= 1;
    const bool isHeld = key.key() == mlHeld && key.timestamp() - mlPressTime < LongestRepeatDelay;
    const bool repeated = key.isAutoRepeat() || isHeld || (isPair && key.key() == mlReleased);
    mlHeld = key.key();
    mlPressTime = key.timestamp();
    if (!repeated) mPressedIn = &window;
    if (mlHeld == Qt::Key_Escape && !repeated && !MenuOrBoxIsOpen())
        mbEscDown = mbEscPressed = true;
    return repeated && (mPressedIn != &window || !MayRepeat(mlHeld));
}

} // namespace tessarin::qt
