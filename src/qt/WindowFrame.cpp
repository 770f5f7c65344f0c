#include "qt/WindowFrame.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace tessarin::qt {

namespace {

constexpr Qt::WindowStates Stretched = Qt::WindowMaximized | Qt::WindowFullScreen;

} // namespace

void WindowFrame::SetSize(QSize outer, int leastHeight) {
    mOuter = outer;
    mlLeastHeight = leastHeight;
    Fix();
}

QSize WindowFrame::Inside() const {
    const QSize inside = mOuter.shrunkBy(mMargins);
    return inside.expandedTo({0, mlLeastHeight});
}

bool WindowFrame::Follow(const QEvent& event) {
    switch (event.type()) {
    case QEvent::WinIdChange:
        if (const QWindow* const native = mWindow.windowHandle())
            QObject::connect(native, &QWindow::windowStateChanged, &mWindow,
                             [this](Qt::WindowState state) {
                                 if (Stretched.testFlag(state)) Release();
                             });
        return false;
    case QEvent::WindowStateChange:
        Fix();
        return false;
    case QEvent::Move:
    case QEvent::Resize:
        return Measure(false);
    case QEvent::Paint:
        return Measure(true);
    default:
        return false;
    }
}

// X11 tells the frame with the first move, other systems with the first paint. Margins of zero mean
// "not known yet" before the first paint and "no frame" after it.
bool WindowFrame::Measure(bool trustZero) {
    if (!mWindow.isVisible() || mWindow.windowHandle() == nullptr) return false;
    const QMargins margins = mWindow.windowHandle()->frameMargins();
    if (margins == mMargins || (margins.isNull() && !trustZero)) return false;
    mMargins = margins;
    Fix();
    return true;
}

// Some desktops maximise every window. It must then take the size that it is given: on Wayland
// another one would break the protocol, and the system would end the program. The native window
// knows the state before the desktop sends the size; the widget still has it until the desktop has
// sent the next one.
void WindowFrame::Fix() {
    const QWindow* const native = mWindow.windowHandle();
    const auto states =
        mWindow.windowState() | (native ? native->windowStates() : mWindow.windowState());
    if (!states.testAnyFlags(Stretched)) mWindow.setFixedSize(Inside());
}

void WindowFrame::Release() {
    mWindow.setMinimumSize(0, 0);
    mWindow.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

} // namespace tessarin::qt
