#pragma once

#include "platform/Platform.h"
#include "platform/Toolkit.h"
#include "platform/qt/EscWatch.h"

class QDialog;

namespace tessarin::qt {

class QtForm;

/// The machine as Qt 6 Widgets shows it, and the toolkit of its one form. Needs a QApplication and
/// is the current Platform while it lives.
class QtPlatform : public Platform, public Toolkit {
public:
    /// Gives the application the look that the window is measured for, on every desktop.
    QtPlatform();
    QtPlatform(const QtPlatform&) = delete;
    QtPlatform& operator=(const QtPlatform&) = delete;
    ~QtPlatform() override;

    void PumpEvents() override;
    void Sleep(int milliseconds) override;
    bool EscPressed() override;
    Message::Answer ShowMessage(const Message& message) override;
    void Beep() override;
    void SetMousePointer(MousePointer pointer) override;
    std::string ProgramName() override;
    std::string ProgramFolder() override;
    int GetDesktopWindow() override { return DesktopWindow; }
    void LockWindowUpdate(int handle) override;
    void ShowWindow(int handle, int command) override;
    int GetWindowLongA(int handle, int index) override;
    void SetWindowLongA(int handle, int index, int value) override;

    std::unique_ptr<ControlPeer> CreatePeer(ControlKind kind, Control& control,
                                            Control* container) override;
    std::optional<std::string> RunFileDialog(const FileDialogRequest& request) override;

    /// The form has closed: from now on nothing is pumped, slept or asked, so that handlers still
    /// under way come to their end at once, and a box or dialog that is open is cancelled.
    void Close();
    bool Closed() const { return mbClosed; }

private:
    static constexpr int DesktopWindow = 1;

    // Runs a modal dialog with the normal pointer.
    int RunModal(QDialog& dialog);
    void ApplyPointer();
    bool IsForm(int handle) const;

    EscWatch mEscWatch;
    QtForm* mForm = nullptr;
    bool mbClosed = false;
    bool mbHourglass = false; // asked for
    bool mbHourglassShown = false;
    int mlOpenDialogs = 0;
};

} // namespace tessarin::qt
