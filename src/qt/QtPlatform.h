#pragma once

#include "platform/Platform.h"
#include "qt/EscWatch.h"

#include <QElapsedTimer>

class QDialog;

namespace tessarin::qt {

class QtForm;

/// The platform on Qt 6 Widgets, with one form at a time. Needs a QApplication and is the current
/// Platform while it lives.
class QtPlatform : public Platform {
public:
    /// Gives the application the same look on every desktop. `version` is the program's record.
    explicit QtPlatform(VersionRecord version = {});
    QtPlatform(const QtPlatform&) = delete;
    QtPlatform& operator=(const QtPlatform&) = delete;
    ~QtPlatform() override;

    void PumpEvents(Pump pump) override;
    void Sleep(int milliseconds) override;
    bool EscPressed() override;
    Message::Answer ShowMessage(const Message& message) override;
    void Beep() override;
    void SetMousePointer(MousePointer pointer) override;
    std::string ProgramName() override;
    std::string ProgramFolder() override;
    VersionRecord Version() override { return mVersion; }
    int GetDesktopWindow() override { return DesktopWindow; }
    void LockWindowUpdate(int handle) override;
    void ShowWindow(int handle, int command) override;
    int GetWindowLongA(int handle, int index) override;
    void SetWindowLongA(int handle, int index, int value) override;

    /// The form's window; nullptr when it is gone.
    void SetForm(QtForm* form) { mForm = form; }
    QtForm& CurrentForm() { return *mForm; }

    /// The form has closed. From now on nothing is pumped, slept or asked, so that handlers that
    /// are still running end at once; a box or dialog that is open is cancelled.
    void Close();
    bool Closed() const { return mbClosed; }

    /// Whether timers must not tick now. A tick that is due waits.
    bool TicksHeld() const { return mbTicksHeld; }

    /// Runs a modal dialog with the normal mouse pointer. Returns the dialog's result.
    int RunModal(QDialog& dialog);

private:
    static constexpr int DesktopWindow = 1;

    bool IsPumpDue();
    void ApplyPointer();
    bool IsForm(int handle) const;

    VersionRecord mVersion;
    EscWatch mEscWatch;
    QtForm* mForm = nullptr;
    bool mbClosed = false;
    bool mbTicksHeld = false;
    QElapsedTimer mSincePump; // since the last real pump; invalid: the next one must be real
    unsigned mlPumpsAsked = 0;
    bool mbHourglass = false; // the pointer that SetMousePointer has asked for
    bool mbHourglassShown = false;
    int mlOpenDialogs = 0;
};

} // namespace tessarin::qt
