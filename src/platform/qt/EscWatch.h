#pragma once

#include <QObject>

namespace tessarin::qt {

/// Knows the state of the ESC key, whatever control has the focus, and swallows its repeats: held
/// down, ESC neither answers the question it leads to nor counts twice. A press that closes a menu,
/// a message box or a dialog does not count.
class EscWatch : public QObject {
public:
    /// Watches all windows of the application.
    EscWatch();

    /// Whether ESC is down now or has been pressed since the last call.
    bool Query();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    // Returns whether the press is swallowed.
    bool Press(quint64 timestamp, bool repeat);

    bool mbHeld = false;    // the key is down
    bool mbDown = false;    // down since a press that counts
    bool mbPressed = false; // a press that counts has come since the last query
    quint64 mReleased = 0;  // time stamp of the last release
};

} // namespace tessarin::qt
