#pragma once

#include <QMenuBar>

namespace tessarin::qt {

class KeyboardFocus;

/// A menu bar that shows where the keyboard is. A tap on Alt, or F10, goes to its first title and
/// back, as a click elsewhere does; Alt with the first letter of a title opens that menu.
class QtMenuBar : public QMenuBar {
public:
    QtMenuBar(QWidget& window, KeyboardFocus& focus);

    /// Goes to the first title, or gives the keyboard back to the control that had it before.
    void Toggle();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;

private:
    bool Pressed(const QKeyEvent& key);
    // Returns whether there is an enabled title that begins with `letter`.
    bool Open(const QString& letter);

    KeyboardFocus& mFocus;
    bool mbAltAlone = false; // Alt is down, and nothing else has been pressed since
};

} // namespace tessarin::qt
