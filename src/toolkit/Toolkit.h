// SPDX-License-Identifier: MIT
// What the controls of a window need from a window toolkit.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace tessarin {

class CommandButton;
class CommonDialog;
class Form;
class Frame;
class Label;
class MenuItem;
class OptionButton;
class Picture;
class Timer;

/// The properties whose changes a control tells its peer.
enum class Property {
    Bounds,
    Texts, ///< caption and accessible name
    Font,
    Colors,
    Visible,
    Enabled,
    Interval,
};

enum class FileDialogKind { Open, Save };

/// The toolkit's side of one control. It reads the properties from the control and tells it what
/// the user does (Control::RaiseClick and the like).
class ControlPeer {
public:
    virtual ~ControlPeer() = default;
    virtual void Changed(Property property) = 0;
};

class LabelPeer : public ControlPeer {
public:
    /// See Label::MakeCurrent.
    virtual void MakeCurrent() = 0;
};

class OptionPeer : public ControlPeer {
public:
    /// Shows the option as the selected one of its container.
    virtual void Select() = 0;
};

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
    virtual std::unique_ptr<ControlPeer> Create(CommandButton& button) = 0;
    virtual std::unique_ptr<ControlPeer> Create(Frame& frame) = 0;
    virtual std::unique_ptr<LabelPeer> Create(Label& label) = 0;
    virtual std::unique_ptr<ControlPeer> Create(MenuItem& item) = 0;
    virtual std::unique_ptr<OptionPeer> Create(OptionButton& option) = 0;
    virtual std::unique_ptr<ControlPeer> Create(Picture& picture) = 0;
    virtual std::unique_ptr<ControlPeer> Create(Timer& timer) = 0;

    /// Runs the dialog until it is closed. Returns the full path chosen, or nothing when cancelled.
    virtual std::optional<std::string> RunFileDialog(const CommonDialog& dialog,
                                                     FileDialogKind kind) = 0;
};

} // namespace tessarin
