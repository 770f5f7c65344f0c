// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/Controls.h"

#include <QMenuBar>

#include <memory>

namespace tessarin::qt {

class KeyboardFocus;

/// A menu bar that shows where the keyboard is. A tap on Alt, or F10, goes to its first title, and
/// back again; a click elsewhere goes back, too. Alt with the first letter of a title opens that
/// menu.
class QtMenuBar : public QMenuBar {
public:
    QtMenuBar(QWidget& window, KeyboardFocus& focus);

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* receiver, QEvent* event) override;
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;

private:
    // Returns whether the press is used up.
    bool Pressed(const QKeyEvent& key);
    void Released(const QKeyEvent& key);
    // Opens the menu of the enabled title that begins with `letter`; returns whether there is one.
    bool Open(const QString& letter);
    // Goes to the first title, or back to where the focus was before.
    void Toggle();
    // Goes back, if the focus is here.
    void Leave();

    KeyboardFocus& mFocus;
    bool mbAltAlone = false; // Alt is down, and nothing else has been pressed since
};

/// Creates the peer of a menu entry: an action of the menu bar or of the menu that contains it,
/// with a menu of its own as soon as that gets entries.
std::unique_ptr<ControlPeer> CreateMenuPeer(MenuItem& item, QtMenuBar& bar);

} // namespace tessarin::qt
