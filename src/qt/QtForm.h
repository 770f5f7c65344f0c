// SPDX-License-Identifier: MIT
#pragma once

#include "qt/KeyboardFocus.h"
#include "qt/QtMenuBar.h"
#include "qt/WindowFrame.h"
#include "toolkit/Form.h"

#include <QWidget>

#include <functional>

namespace tessarin::qt {

/// A form's window: a menu bar, and below it the client area that holds all controls. The form's
/// Width and Height are the outer size; the client is what the frame and the menu bar leave.
class QtForm : public QWidget, public FormPeer {
public:
    /// `closed` is called when the window has closed.
    QtForm(Form& form, std::function<void()> closed);

    void Changed(Property property) override;
    void Close() override { close(); }
    int Handle() override { return static_cast<int>(winId()); } // an id of X11 has 29 bits

    QtMenuBar& MenuBar() { return mMenuBar; }
    /// The parent of all controls, below the menu bar.
    QWidget& Client() { return mClient; }

    KeyboardFocus& Focus() { return mFocus; }
    /// The rectangle around the grid of labels in coordinates of the screen.
    QRect GridOnScreen() const;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    // Clicks the button to which the key belongs. Qt's own shortcuts need an active window, which
    // there may not be.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Arrange();
    void Activate();
    void WaitForActivation();
    void ArrangeTabOrder();

    Form& mForm;
    std::function<void()> mTellClosed;
    WindowFrame mFrame{*this};
    KeyboardFocus mFocus{*this};
    QtMenuBar mMenuBar{*this, mFocus};
    QWidget mClient{this};

    bool mbClosed = false;
    bool mbActivated = false;     // Activate has run
    bool mbLeftForOwnBox = false; // the window is inactive because of a box of its own
};

} // namespace tessarin::qt
