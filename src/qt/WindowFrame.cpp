// SPDX-License-Identifier: MIT
#include "qt/WindowFrame.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace tessarin::qt {

bool IsOnWayland() {
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

QMargins WithoutShadow(const QMargins& frame) {
    constexpr int ShadowWidth = 10;
    const bool hasShadow = frame.bottom() > ShadowWidth;
    return hasShadow ? frame - ShadowWidth : frame;
}

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
// "not known yet" before the first paint and "no frame" after it. On Wayland they also mean that
// the compositor draws the frame, and it does not tell its thickness.
bool WindowFrame::Follow(const QEvent& event) {
    const bool isPaint = event.type() == QEvent::Paint;
    const bool isResize = event.type() == QEvent::Resize;
    if (isResize) ApplySize();
    if (!isPaint && !isResize && event.type() != QEvent::Move) return false;
    if (!mWindow.isVisible()) return false;
    QMargins margins = mWindow.windowHandle()->frameMargins();
    if (IsOnWayland()) margins = WithoutShadow(margins);
    const bool isUnknown = margins.isNull() && (!isPaint || IsOnWayland());
    if (isUnknown || margins == mMargins) return false;
    mMargins = margins;
    ApplySize();
    return true;
}

void WindowFrame::ApplySize() {
    if (IsOnWayland())
        ApplySizeOnWayland();
    else
        mWindow.setFixedSize(InnerSize());
}

// Wayland desktops maximise windows or put them into tiles. There the window must take the size
// that it is given: another one may hide its menus, or break the protocol, which ends the program.
void WindowFrame::ApplySizeOnWayland() {
    Qt::WindowStates states = mWindow.windowState();
    if (const QWindow* const native = mWindow.windowHandle()) states |= native->windowStates();
    if (states.testAnyFlags(Qt::WindowMaximized | Qt::WindowFullScreen)) return;
    const bool hasOwnSize = HasOwnSize(); // before the least size changes
    // A least size holds for maximised windows, too: on a small screen it leaves room for panels.
    mWindow.setMinimumSize(InnerSize().boundedTo(mWindow.screen()->size() * 0.75));
    if (hasOwnSize) {
        mOwnSize = InnerSize();
        mWindow.resize(mOwnSize);
    } else {
        mWindow.resize(mWindow.size().expandedTo(InnerSize()));
    }
}

bool WindowFrame::HasOwnSize() const {
    if (!mWindow.isVisible()) return true;
    const QSize least = mWindow.minimumSize(); // Qt makes the window at least as large
    return mWindow.size().expandedTo(least) == mOwnSize.expandedTo(least);
}

} // namespace tessarin::qt
