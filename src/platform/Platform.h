// SPDX-License-Identifier: MIT
// What the program asks of the machine it runs on, without any toolkit type.
#pragma once

#include <cstdint>
#include <string>

namespace tessarin {

/// A moment of local time in parts. All parts zero is the zero date.
struct DateTime {
    int Year = 0;
    int Month = 0;
    int Day = 0;
    int Hour = 0; ///< 0 to 23
    int Minute = 0;
    int Second = 0;
    bool operator==(const DateTime&) const = default;
};

/// The program's description, copyright, address and version, as the About box shows them.
struct VersionRecord {
    std::string FileDescription;
    std::string LegalNotice;
    std::string WebAddress;
    std::int16_t Major = 0;
    std::int16_t Minor = 0;
    std::int16_t Revision = 0;
};

/// A modal message box. Prompt and title are UTF-8; an empty title means the window's title.
struct Message {
    enum class Buttons { Ok, YesNo };
    enum class Answer { Ok, Yes, No };

    std::string Prompt = {};
    std::string Title = {};
    Buttons ButtonSet = Buttons::Ok;
    bool QuestionIcon = false;

    /// The answer of a box that is closed without a button, or not shown at all.
    Answer Refusal() const { return ButtonSet == Buttons::YesNo ? Answer::No : Answer::Ok; }
};

enum class MousePointer { Default, Hourglass };

/// Whether a pump of window events is made in any case, or may be skipped: computations request
/// thousands of them a second. See Platform::PumpEvents.
enum class Pump { Now, WhenDue };

/// The machine that the program runs on. One instance is current; by default a NullPlatform.
class Platform {
public:
    virtual ~Platform() = default;

    static Platform& Current();
    /// Makes `platform` current, or the null platform if it is nullptr. The caller keeps the
    /// ownership.
    static void SetCurrent(Platform* platform);

    /// Handles the waiting window events once. Any handler of the window may run inside. With
    /// Pump::WhenDue a platform may do nothing if its last pump was less than a millisecond ago.
    /// After that millisecond it may skip seven calls at most. While a change that the user must
    /// see waits to be painted, it skips none.
    virtual void PumpEvents(Pump pump) = 0;
    /// Sleeps for `milliseconds` (above 0). The window may be painted and activated meanwhile. User
    /// input and timers wait, unless the activation pumps events; if that closes the window, the
    /// sleep ends.
    virtual void Sleep(int milliseconds) = 0;
    /// Whether ESC has been pressed since the last call. Holding it is one press.
    virtual bool EscPressed() = 0;
    /// Shows the box and returns the button that closed it, or Message::Refusal.
    virtual Message::Answer ShowMessage(const Message& message) = 0;
    virtual void Beep() = 0;
    /// Sets the pointer of the whole application. Calls do not nest.
    virtual void SetMousePointer(MousePointer pointer) = 0;

    /// The name of the program file without folder and extension.
    virtual std::string ProgramName() = 0;
    /// The folder of the program file, without a separator at its end.
    virtual std::string ProgramFolder() = 0;
    virtual VersionRecord Version() = 0;
    /// The current local time.
    virtual DateTime Now();
    /// Converts `path` (folder, backslash, name) to the form in which this system opens files: here
    /// the last backslash becomes a slash.
    virtual std::string NativePath(const std::string& path);

    /// Called when a handler of the window ends with an error. Prints it to standard error; the
    /// user is not told.
    virtual void ReportError(const std::string& what);

    // The window-style calls of ShowInTaskBar. `handle` is the window's native handle. By default
    // they do nothing, and every style is 0.
    static constexpr int HideCommand = 0;
    static constexpr int ShowCommand = 5; ///< shows and activates the window
    static constexpr int ExtendedStyle = -20;
    static constexpr int ApplicationWindowBit = 0x40000; ///< gives the window a taskbar entry
    virtual int GetDesktopWindow() { return 0; }
    /// Suspends what the calls below make visible, to avoid flicker; handle 0 ends that.
    virtual void LockWindowUpdate(int /*handle*/) {}
    virtual void ShowWindow(int /*handle*/, int /*command*/) {}
    /// The style with that index, such as ExtendedStyle.
    virtual int GetWindowLongA(int /*handle*/, int /*index*/) { return 0; }
    virtual void SetWindowLongA(int /*handle*/, int /*index*/, int /*value*/) {}
};

/// The current platform's PumpEvents.
inline void PumpEvents(Pump pump = Pump::WhenDue) {
    Platform::Current().PumpEvents(pump);
}

} // namespace tessarin
