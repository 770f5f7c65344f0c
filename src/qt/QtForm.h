#pragma once

#include "qt/KeyboardFocus.h"
#include "qt/QtMenuBar.h"
#include "qt/WindowFrame.h"
#include "toolkit/Form.h"

#include <QWidget>

namespace tessarin::qt {

class QtPlatform;

/// A form's window: a fixed border, a menu bar, and below it the client area that holds all
/// controls. The outer size is the form's Width and Height; the client is what the frame leaves.
class QtForm : public QWidget, public FormPeer {
public:
    QtForm(Form& form, QtPlatform& platform);

    void Changed(Property property) override;
    void Close() override { close(); }
    int Handle() override { return static_cast<int>(winId()); }

    QtMenuBar& MenuBar() { return mMenuBar; }
    /// The parent of all controls, below the menu bar.
    QWidget& Client() { return mClient; }

    KeyboardFocus& Focus() { return mFocus; }
    QtPlatform& Platform() { return mPlatform; }
    const QMargins& Frame() const { return mFrame.Margins(); }

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    // A character that is the whole caption of a button clicks it, and so does its shortcut.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Arrange();
    void Activate();
    void ArrangeTabOrder();

    Form& mForm;
    QtPlatform& mPlatform;
    WindowFrame mFrame{*this};
    KeyboardFocus mFocus{*this};
    QtMenuBar mMenuBar{*this, mFocus};
    QWidget mClient{this};

    bool mbActivated = false;     // the window has been active
    bool mbLeftForOwnBox = false; // it is inactive because of a box of its own
};

} // namespace tessarin::qt
