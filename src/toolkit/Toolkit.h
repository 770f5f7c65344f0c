// What the controls of a window need from a window toolkit.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace tessarin {

class CommonDialog;
class Control;
class Form;
class Timer;

/// The kinds of control that a user sees in a form.
enum class Kind { CommandButton, Frame, Label, MenuItem, OptionButton, Picture };

/// The properties of a control whose changes a toolkit is told.
enum class Property {
    Bounds,
    Texts, ///< caption, tool tip and accessible name
    Font,
    Colors,
    Visible,
    Enabled,
    Interval,
};

/// The toolkit's side of one control. It reads the properties from the control and tells it what
/// the user does (Control::RaiseClick and the like).
class ControlPeer {
public:
    virtual ~ControlPeer() = default;
    virtual void Changed(Property property) = 0;
    /// Shows an option button as the selected one of its container. Nothing for other controls.
    virtual void Select() {}
    /// Lets the arrow keys move on from a label of the form's grid. Nothing for other controls.
    virtual void MakeCurrent() {}
};

/// The toolkit's side of a form.
class FormPeer : public ControlPeer {
public:
    /// Asks the window to close, as its close box does.
    virtual void Close() = 0;
    /// The native handle for the window-style calls of Platform.
    virtual int Handle() = 0;
};

/// Creates the peers of controls. Each control asks for its peer in its constructor, when its
/// properties are set already; the peer applies them. The control's container has its peer by then.
class Toolkit {
public:
    virtual ~Toolkit() = default;

    virtual std::unique_ptr<FormPeer> Create(Form& form) = 0;
    virtual std::unique_ptr<ControlPeer> Create(Timer& timer) = 0;
    virtual std::unique_ptr<ControlPeer> Create(Control& control, Kind kind) = 0;

    /// Runs the dialog until it is closed. Returns the full path chosen, or nothing when cancelled.
    virtual std::optional<std::string> RunFileDialog(const CommonDialog& dialog, bool saving) = 0;
};

} // namespace tessarin
