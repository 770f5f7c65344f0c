#include "qt/WindowFrame.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace tessarin::qt {

void WindowFrame::SetSize(QSize outer, int leastHeight) {
    mOuter = outer;
    mlLeastHeight = leastHeight;
    ApplySize();
}

QSize WindowFrame::InnerSize() const {
    const QSize inside = mOuter.shrunkBy(mMargins);
    return inside.expandedTo({0, mlLeastHeight});
}

// X11 tells the frame with the first move, other systems with the first paint. Margins of zero mean
// "not known yet" before the first paint and "no frame" after it.
bool WindowFrame::Follow(const QEvent& event) {
    const bool isPaint = event.type() == QEvent::Paint;
    const bool isResize = event.type() == QEvent::Resize;
    const bool hasWrongSize = isResize && mWindow.size() != InnerSize();
    if (hasWrongSize || event.type() == QEvent::WindowStateChange) ApplySize();
    if (!isPaint && !isResize && event.type() != QEvent::Move) return false;
    if (!mWindow.isVisible()) return false;
    const QMargins margins = mWindow.windowHandle()->frameMargins();
    if (margins == mMargins || (margins.isNull() && !isPaint)) return false;
    mMargins = margins;
    ApplySize();
    return true;
}

// Some desktops maximise every window. It must then take the size that it is given: on Wayland
// another one would break the protocol, and the system would end the program. Qt keeps to a fixed
// size even then, so there the size is not fixed, but set again after each change.
void WindowFrame::ApplySize() {
    const QWindow* const native = mWindow.windowHandle();
    const auto states =
        mWindow.windowState() | (native ? native->windowStates() : mWindow.windowState());
    if (states.testAnyFlags(Qt::WindowMaximized | Qt::WindowFullScreen)) return;
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        mWindow.resize(InnerSize());
    else
        mWindow.setFixedSize(InnerSize());
}

} // namespace tessarin::qt
