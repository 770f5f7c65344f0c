#pragma once

#include "qt/KeyboardFocus.h"
#include "qt/QtLabelGrid.h"
#include "qt/QtMenuBar.h"
#include "qt/WindowFrame.h"
#include "toolkit/Controls.h"
#include "toolkit/Form.h"

#include <QWidget>

namespace tessarin::qt {

class QtPlatform;

/// A form's window: a fixed border, a menu bar, and below it the client area that holds all
/// controls. The outer size is the form's Width and Height; the client is what the frame leaves.
class QtForm : public QWidget, public FormPeer {
public:
    QtForm(Form& form, QtPlatform& platform);
    QtForm(const QtForm&) = delete;
    QtForm& operator=(const QtForm&) = delete;
    ~QtForm() override;

    void Changed(Property property) override;
    void Close() override { close(); }
    int Handle() override { return static_cast<int>(winId()); }

    QtMenuBar& MenuBar() { return mMenuBar; }
    /// The parent of all controls, below the menu bar.
    QWidget& Client() { return mClient; }

    QtLabelGrid& Grid() { return mGrid; }
    QRect GridOnScreen() const { return mGrid.Bounds().translated(mClient.mapToGlobal(QPoint())); }
    const QMargins& Frame() const { return mFrame.Margins(); }
    KeyboardFocus& Focus() { return mFocus; }
    /// Leaves the menu bar: the focus goes back to where it was.
    void LeaveMenuBar();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    // A character that is the whole caption of a button clicks it, and so does its shortcut.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ApplySize();
    void Arrange();
    void Activate();
    void ArrangeTabOrder();

    Form& mForm;
    QtPlatform& mPlatform;
    WindowFrame mFrame{*this};
    QtMenuBar mMenuBar{*this};
    QWidget mClient{this};
    QtLabelGrid mGrid;
    KeyboardFocus mFocus{*this, mGrid};

    bool mbActivated = false;     // the window has been active
    bool mbLeftForOwnBox = false; // it is inactive because of a box of its own
};

} // namespace tessarin::qt
