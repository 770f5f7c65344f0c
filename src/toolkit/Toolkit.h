// What the controls of a window need from a window toolkit.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace tessarin {

class CommandButton;
class Control;
class Form;
class Frame;
class Label;
class MenuItem;
class OptionButton;
class Picture;
class Timer;
class UserControl;

/// The properties of a control whose changes a toolkit is told.
enum class Property {
    Bounds,
    Caption,
    ToolTipText,
    AccessibleName,
    Font,
    Colors,
    BorderStyle,
    Alignment,
    Visible,
    Enabled,
    Selected,
    Current,
    PictureFile,
    Interval,
};

/// The toolkit's side of one control. It reads the properties from the control and tells it what
/// the user does (Control::RaiseClick and the like).
class ControlPeer {
public:
    virtual ~ControlPeer() = default;
    virtual void Changed(Property property) = 0;
};

/// The toolkit's side of a form.
class FormPeer : public ControlPeer {
public:
    /// Asks the window to close, as its close box does.
    virtual void Close() = 0;
    /// The native handle for the window-style calls of Platform.
    virtual int Handle() = 0;
};

/// The properties of a file dialog that is to be shown.
struct FileDialogRequest {
    std::string Title;
    std::string Filter; ///< pairs of description and pattern, separated by "|"
    std::string DefaultExt;
    bool Saving = false;
    bool FileMustExist = false;
    bool PathMustExist = false;
    std::string FileName; ///< the file chosen last; the dialog opens in its folder
};

/// Creates the peers of controls. Each control asks for its peer in its constructor, when its
/// design is set already; the peer applies the design. `container` is the form, frame or composite
/// control around the control.
class Toolkit {
public:
    virtual ~Toolkit() = default;

    virtual std::unique_ptr<FormPeer> Create(Form& form) = 0;
    virtual std::unique_ptr<ControlPeer> Create(Label& label, Control& container) = 0;
    virtual std::unique_ptr<ControlPeer> Create(CommandButton& button, Control& container) = 0;
    virtual std::unique_ptr<ControlPeer> Create(OptionButton& option, Control& container) = 0;
    virtual std::unique_ptr<ControlPeer> Create(Frame& frame, Control& container) = 0;
    virtual std::unique_ptr<ControlPeer> Create(UserControl& control, Control& container) = 0;
    virtual std::unique_ptr<ControlPeer> Create(Picture& picture, Control& container) = 0;
    virtual std::unique_ptr<ControlPeer> Create(Timer& timer) = 0;
    /// An entry of the menu bar.
    virtual std::unique_ptr<ControlPeer> Create(MenuItem& item, Form& form) = 0;
    /// An entry of a menu; the first one makes `menu` a menu.
    virtual std::unique_ptr<ControlPeer> Create(MenuItem& item, MenuItem& menu) = 0;

    /// Runs the dialog until it is closed. Returns the full path chosen, or nothing when cancelled.
    virtual std::optional<std::string> RunFileDialog(const FileDialogRequest& request) = 0;
};

} // namespace tessarin
