// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <utility>

class QKeyEvent;

namespace tessarin::qt {

/// Watches the keyboard at the windows, whatever control has the focus. A key that is held counts
/// once: its repeats are swallowed. Arrow keys, Tab and text that is typed may repeat, but not in a
/// window that has opened since the press. A press of ESC that closes a menu, a message box or a
/// dialog does not count for EscPressed.
class KeyWatch : public QObject {
public:
    /// Watches all windows of the application.
    KeyWatch();

    /// Whether a press of ESC that counts has come since the last call.
    bool EscPressed() { return std::exchange(mbEscPressed, false); }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void Release(const QKeyEvent& key);
    // Returns whether the press is swallowed.
    bool Press(const QObject& window, const QKeyEvent& key);

    QPointer<const QObject> mPressedIn; // the window that got the last press that is no repeat
    int mlReleased = 0;                 // the key that was released last
    quint64 mlReleaseTime = 0;          // in milliseconds
    bool mbEscPressed = false;          // a press that counts has come since the last query
};

} // namespace tessarin::qt
