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

/// What the program file says of itself.
struct VersionRecord {
    std::string FileDescription;
    std::string LegalNotice;
    std::string WebAddress;
    std::int16_t Major = 0;
    std::int16_t Minor = 0;
    std::int16_t Revision = 0;
};

/// A modal message box. Prompt and title are UTF-8; an empty title means the application's title.
struct Message {
    enum class Buttons { Ok, YesNo };
    enum class Answer { Ok, Yes, No };

    std::string Prompt = {};
    std::string Title = {};
    Buttons ButtonSet = Buttons::Ok;
    bool QuestionIcon = false;
};

enum class MousePointer { Default, Hourglass };

/// How a pump is meant: at once, or only when the last one is some time ago.
enum class Pump { Now, WhenDue };

/// The machine below. One instance is current at a time; without any, a NullPlatform answers.
class Platform {
public:
    virtual ~Platform() = default;

    static Platform& Current();
    /// Makes `platform` the current one (none: the null platform) and returns the one before,
    /// or nullptr. The caller keeps the ownership.
    static Platform* SetCurrent(Platform* platform);

    /// Handles all window events that are waiting, once. Any handler of the window may run inside.
    /// Long computations ask thousands of times a second, with Pump::WhenDue: then a platform may
    /// leave a pump out if another one has ended less than a millisecond before.
    virtual void PumpEvents(Pump pump) = 0;
    /// Stops the program for `milliseconds` (above 0), less when the window is closed by a
    /// handler. The window may be painted and activated meanwhile; apart from what the activation
    /// pumps, no input of the user is handled and no timer ticks.
    virtual void Sleep(int milliseconds) = 0;
    /// Whether ESC is down now or has been pressed since the last call.
    virtual bool EscPressed() = 0;
    /// Shows the box and returns the button that closed it; closing it otherwise counts as No, or
    /// as OK where that is the only button.
    virtual Message::Answer ShowMessage(const Message& message) = 0;
    virtual void Beep() = 0;
    /// Sets the pointer of the whole application; setting it twice is the same as once.
    virtual void SetMousePointer(MousePointer pointer) = 0;

    /// The name of the program file without folder and extension.
    virtual std::string ProgramName() = 0;
    /// The folder of the program file, without a separator at its end.
    virtual std::string ProgramFolder() = 0;
    /// The program's version record.
    virtual VersionRecord Version() = 0;
    /// The current local time.
    virtual DateTime Now();
    /// `path`, made of a folder, a backslash and a name, in the form in which this system opens
    /// files: here the last backslash becomes a slash.
    virtual std::string NativePath(const std::string& path);

    /// A handler of the window has ended with an error of which the user is not told. A debug
    /// build shows it on the standard error stream.
    virtual void ReportError(const std::string& what);

    // The window-style calls behind the taskbar entry. A window is named by its native handle.
    virtual int GetDesktopWindow() = 0;
    /// Holds back what the calls below do to a window, so that it does not flicker; handle 0 lets
    /// it show.
    virtual void LockWindowUpdate(int handle) = 0;
    /// Command 0 hides the window, command 5 shows and activates it.
    virtual void ShowWindow(int handle, int command) = 0;
    /// Index -20 is the extended style; its bit 0x40000 gives the window a taskbar entry.
    virtual int GetWindowLongA(int handle, int index) = 0;
    virtual void SetWindowLongA(int handle, int index, int value) = 0;
};

/// The current platform's PumpEvents.
inline void PumpEvents(Pump pump = Pump::WhenDue) {
    Platform::Current().PumpEvents(pump);
}

} // namespace tessarin
