// What the window's controls ask of the window toolkit.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace tessarin {

class Control;
class Form;

/// The kinds of control a toolkit knows.
enum class ControlKind {
    Form,
    Label,
    CommandButton,
    OptionButton,
    Frame,
    UserControl,
    Picture,
    MenuItem,
    Timer
};

/// The properties of a control that a toolkit is told of.
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
    Image,
    Interval,
};

/// The toolkit's side of one control. It reads the properties from the control and tells it of the
/// user's actions (Control::RaiseClick and the like).
class ControlPeer {
public:
    virtual ~ControlPeer() = default;
    /// The control's property has a new value.
    virtual void Changed(Property property) = 0;
    /// For a form: asks its window to close, as its close box does.
    virtual void Close() {}
    /// For a form: the native handle, as the window-style calls take it.
    virtual int Handle() { return 0; }
};

/// A file dialog as it is to be shown.
struct FileDialogRequest {
    std::string Title;
    std::string Filter; ///< pairs of description and pattern, separated by "|"
    std::string DefaultExt;
    bool Saving = false;
    bool FileMustExist = false;
    bool PathMustExist = false;
    std::string FileName; ///< the file chosen last; the dialog opens in its folder
};

/// Makes the toolkit's side of the controls.
class Toolkit {
public:
    virtual ~Toolkit() = default;
    /// The peer of `control`, which lies in `container` (none for a form). The control holds all
    /// design properties already; the peer takes them over.
    virtual std::unique_ptr<ControlPeer> CreatePeer(ControlKind kind, Control& control,
                                                    Control* container) = 0;
    /// Runs the dialog until it is closed. Returns the full path chosen, or nothing when cancelled.
    virtual std::optional<std::string> RunFileDialog(const FileDialogRequest& request) = 0;
};

} // namespace tessarin
