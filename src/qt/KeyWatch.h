#pragma once

#include <QObject>

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

    /// Whether ESC is down now or has been pressed since the last call.
    bool EscPressed() { return std::exchange(mbEscPressed, false) || mbEscDown; }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    // Returns whether the press is swallowed.
    bool Press(const QObject& window, const QKeyEvent& key);

    int mlHeld = 0;                      // the key that is down
    const QObject* mPressedIn = nullptr; // the window that has got its press
    quint64 mlPressTime = 0;             // of its last press or repeat, in milliseconds
    int mlReleased = 0;                  // the key that was released last
    quint64 mlReleaseTime = 0;           // in milliseconds, 0 when unknown
    bool mbEscDown = false;              // down since a press that counts
    bool mbEscPressed = false;           // a press that counts has come since the last query
};

} // namespace tessarin::qt
