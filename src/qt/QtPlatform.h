// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"
#include "qt/KeyWatch.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

#include <cassert>
#include <functional>

class QDialog;

namespace tessarin::qt {

/// The platform on Qt 6 Widgets, for one form. Needs a QApplication and is the current
/// Platform while it lives. Qt's windows have a taskbar entry from the start, and hiding one would
/// lose its place and focus: the window-style calls do nothing.
class QtPlatform : public Platform {
public:
    /// `version` is the program's record. Gives the application the same style and direction of
    /// controls on every desktop, and keeps Qt from writing into the user's settings.
    explicit QtPlatform(VersionRecord version);
    ~QtPlatform() override;

    void PumpEvents(Pump pump) override;
    void Sleep(int milliseconds) override;
    bool EscPressed() override { return mKeyWatch.EscPressed(); }
    Message::Answer ShowMessage(const Message& message) override;
    void Beep() override { QApplication::beep(); }
    void SetMousePointer(MousePointer pointer) override;
    std::string ProgramName() override;
    std::string ProgramFolder() override {
        return QApplication::applicationDirPath().toStdString();
    }
    VersionRecord Version() override { return mVersion; }

    /// Boxes belong to `window`. They keep off its part `area`, in coordinates of the screen.
    void SetWindow(QWidget& window, std::function<QRect()> area);
    /// REQUIRES: SetWindow has been called, and the window lives.
    QWidget& Window() {
        assert(mWindow);
        return *mWindow;
    }

    /// To be called when the form has closed. Cancels a box or dialog that is open. From now on
    /// nothing is pumped, slept or asked, so that handlers that are still running end at once.
    void Close();
    bool Closed() const { return mbClosed; }

    /// Whether timers must not tick now. A tick that is due waits.
    bool TicksHeld() const { return mbTicksHeld; }

    /// To be called when a field of the grid has changed: the next pump is made and shows it.
    void ShowAtNextPump() { mbPumpIsDue = true; }

    /// Runs a modal dialog with the normal mouse pointer. Returns the dialog's result.
    int RunModal(QDialog& dialog);

private:
    bool IsPumpDue();
    void ApplyPointer();

    VersionRecord mVersion;
    KeyWatch mKeyWatch;
    QPointer<QWidget> mWindow; // null again when it is gone
    std::function<QRect()> mArea;
    bool mbClosed = false;
    bool mbTicksHeld = false;
    bool mbPumpIsDue = true;  // whatever the time
    QElapsedTimer mSincePump; // since the beginning of the last pump that was made
    unsigned mlPumpsAsked = 0;
    bool mbHourglass = false; // the pointer that SetMousePointer has asked for
    int mlOpenDialogs = 0;
};

} // namespace tessarin::qt
