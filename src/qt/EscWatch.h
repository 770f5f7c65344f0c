#pragma once

#include <QObject>

namespace tessarin::qt {

/// Tracks the ESC key, whatever control has the focus. Swallows the key's repeats, so that holding
/// ESC down neither counts twice nor answers the question that the press has opened. A press that
/// closes a menu, a message box or a dialog does not count.
class EscWatch : public QObject {
public:
    /// Watches all windows of the application.
    EscWatch();

    /// Whether ESC is down now or has been pressed since the last call.
    bool Query();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    // Returns whether the press is swallowed. Times are in milliseconds, 0 when unknown.
    bool Press(quint64 time, bool repeat);

    bool mbHeld = false;    // the key is down
    bool mbDown = false;    // down since a press that counts
    bool mbPressed = false; // a press that counts has come since the last query
    quint64 mReleased = 0;  // when the key was last released
};

} // namespace tessarin::qt
