// What the controls of a window need from a window toolkit.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace tessarin {

class CommonDialog;
class Control;
class Form;
class Label;
class OptionButton;
class Timer;

/// The kinds of control that need no class of their own.
enum class Kind { CommandButton, Frame, MenuItem, Picture, UserControl };
template <Kind>
class PlainControl;
using CommandButton = PlainControl<Kind::CommandButton>;
using Frame = PlainControl<Kind::Frame>;
using MenuItem = PlainControl<Kind::MenuItem>;
using Picture = PlainControl<Kind::Picture>;
using UserControl = PlainControl<Kind::UserControl>;

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
};

/// The toolkit's side of a form.
class FormPeer : public virtual ControlPeer {
public:
    /// Asks the window to close, as its close box does.
    virtual void Close() = 0;
    /// The native handle for the window-style calls of Platform.
    virtual int Handle() = 0;
};

/// The toolkit's side of a label.
class LabelPeer : public virtual ControlPeer {
public:
    /// Lets the arrow keys move on from this label of the form's grid.
    virtual void MakeCurrent() = 0;
};

/// The toolkit's side of an option button.
class OptionPeer : public virtual ControlPeer {
public:
    /// Shows the option as the selected one of its container.
    virtual void Select() = 0;
};

/// Creates the peers of controls. Each control asks for its peer in its constructor, when its
/// properties are set already; the peer applies them. The control's container has its peer by then.
class Toolkit {
public:
    virtual ~Toolkit() = default;

    virtual std::unique_ptr<FormPeer> Create(Form& form) = 0;
    virtual std::unique_ptr<LabelPeer> Create(Label& label) = 0;
    virtual std::unique_ptr<ControlPeer> Create(CommandButton& button) = 0;
    virtual std::unique_ptr<OptionPeer> Create(OptionButton& option) = 0;
    virtual std::unique_ptr<ControlPeer> Create(Frame& frame) = 0;
    virtual std::unique_ptr<ControlPeer> Create(UserControl& control) = 0;
    virtual std::unique_ptr<ControlPeer> Create(Picture& picture) = 0;
    virtual std::unique_ptr<ControlPeer> Create(Timer& timer) = 0;
    /// An entry of the menu bar, if its container is the form, or of the menu that contains it.
    virtual std::unique_ptr<ControlPeer> Create(MenuItem& item) = 0;

    /// Runs the dialog until it is closed. Returns the full path chosen, or nothing when cancelled.
    virtual std::optional<std::string> RunFileDialog(const CommonDialog& dialog, bool saving) = 0;
};

} // namespace tessarin
