#pragma once

#include "platform/Form.h"

#include <QMargins>
#include <QMenuBar>
#include <QPointer>
#include <QWidget>

#include <functional>

namespace tessarin::qt {

class QtPlatform;

/// A form's window: a fixed border, a menu bar, and below it the client area that holds all
/// controls. The outer size is the form's Width and Height; the client is what the frame leaves.
class QtForm : public QWidget, public ControlPeer {
public:
    QtForm(Form& form, QtPlatform& platform);

    void Changed(Property property) override;
    void Close() override { close(); }
    int Handle() override { return static_cast<int>(winId()); }

    QMenuBar& MenuBar() { return mMenuBar; }
    QWidget& Client() { return mClient; }

    /// Shows or hides a control's widget by the control's Visible. One that lies mostly beyond the
    /// right edge of the client is hidden all the same: with a narrow frame a rim of it would show,
    /// and the Tab key would walk into it.
    void PlaceWidget(QWidget& widget, const Control& control);

    /// Runs a change that may take the keyboard focus away from a control. Once that control can
    /// have it again, and the user has not put it elsewhere, it gets it back.
    void KeepFocus(const std::function<void()>& change);

    /// The window-style calls: what is asked between lock and unlock is carried out as one change.
    void LockUpdate();
    void UnlockUpdate();
    void ShowCommand(int command);
    int ExtendedStyle() const { return mlExtendedStyle; }
    void SetExtendedStyle(int style);

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void ApplySize();
    void CheckFrame(bool trustZero);
    void RaiseActivate();
    void ApplyStyle();
    void ArrangeTabOrder();

    Form& mForm;
    QtPlatform& mPlatform;
    QMenuBar mMenuBar{this};
    QWidget mClient{this};
    QMargins mFrame; // the window frame as assumed or last seen
    QList<std::pair<QPointer<QWidget>, const Control*>> mPlaced; // the client's own children

    QPointer<QWidget> mLostFocus;    // had the focus before it was disabled or hidden
    QPointer<QWidget> mFocusInstead; // where the focus went by itself then

    bool mbActivated = false;     // Form_Activate has run once
    bool mbActivating = false;    // it is running
    bool mbLeftForOwnBox = false; // the window lost the activation to a box of its own
    int mlExtendedStyle = 0;
    bool mbLocked = false;
};

} // namespace tessarin::qt
