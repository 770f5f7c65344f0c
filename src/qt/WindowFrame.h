// SPDX-License-Identifier: MIT
#pragma once

#include <QMargins>
#include <QSize>

class QEvent;
class QWidget;

namespace tessarin::qt {

/// There the desktop may give a window another size than it wants, and the window must take it.
bool IsOnWayland();

/// What is seen of a frame. On Wayland Qt draws the frame on GNOME, with a shadow on all sides, and
/// counts the shadow as a part of it; all other frames are thinner than that at the bottom.
QMargins WithoutShadow(const QMargins& frame);

/// Keeps the outer size of a window fixed. Qt's sizes are without the frame, whose thickness
/// depends on the desktop and is known only some milliseconds after the window is shown. Until then
/// a thin one is assumed. On Wayland the window can also be larger: maximised, in a tile, or pulled
/// by the user.
class WindowFrame {
public:
    explicit WindowFrame(QWidget& window) : mWindow(window) {}

    /// In pixels: `outer` includes the frame; inside it the window is at least `leastHeight` high.
    void SetSize(QSize outer, int leastHeight);
    /// What the frame leaves of the outer size.
    QSize InnerSize() const;

    /// To be called after each event of the window: corrects its size. Returns whether the margins
    /// have changed, and InnerSize with them.
    bool Follow(const QEvent& event);

private:
    void ApplySize();
    void ApplySizeOnWayland();
    // Whether the window has the size that was asked for last, not that of a tile or the user's.
    bool HasOwnSize() const;

    QWidget& mWindow;
    QMargins mMargins{1, 20, 1, 1};
    QSize mOuter;
    int mlLeastHeight = 0;
    QSize mOwnSize; // on Wayland, the size that was asked for last
};

} // namespace tessarin::qt
