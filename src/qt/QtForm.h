#pragma once

#include "qt/QtLabelGrid.h"
#include "qt/QtMenuBar.h"
#include "qt/WindowFrame.h"
#include "toolkit/Controls.h"
#include "toolkit/Form.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <utility>

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
    /// Makes `label` the grid's current label, from which the arrow keys move on.
    void MakeCurrent(QtLabel& label);
    /// Gives the focus to the grid's current label. A control that has lost it gets it no more.
    void FocusGrid();
    /// Leaves the menu bar: the focus goes back to where it was.
    void LeaveMenuBar();

    /// Runs `change`, which may hide or disable the control with the keyboard focus. That control
    /// gets the focus back when a later change makes it usable again, unless the user has moved the
    /// focus meanwhile. Until then the focus is at a control beside it or in the grid.
    void KeepFocus(const std::function<void()>& change);

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    // A character that is the whole caption of a button clicks it.
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

    QPointer<QWidget> mLostFocus;    // had the focus until it was disabled or hidden
    QPointer<QWidget> mFocusInstead; // where Qt moved the focus then

    bool mbActivated = false;     // the window has been active
    bool mbLeftForOwnBox = false; // it is inactive because of a box of its own
};

} // namespace tessarin::qt
