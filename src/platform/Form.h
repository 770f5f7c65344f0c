#pragma once

#include "platform/ClickGate.h"
#include "platform/Control.h"

#include <utility>

namespace tessarin {

/// A window with a fixed border. Width and Height are its outer size: border, title bar and menu
/// bar included. It is hidden until it is shown.
class Form : public Control {
public:
    Form(Toolkit& toolkit, Design design)
        : Control(ControlKind::Form, toolkit, nullptr, std::move(design)) {}

    /// All clicks on the form's controls go through it.
    ClickGate Gate;

    void Show() { SetVisible(true); }
    /// Asks the window to close, as its close box does; Form_Unload may refuse.
    void Unload() { Peer().Close(); }
    /// The native handle, as the window-style calls take it.
    int Handle() { return Peer().Handle(); }

    /// The window has become the active one: at its start and whenever the user comes back to it
    /// from elsewhere, but not from its own boxes and dialogs.
    virtual void Form_Activate() {}
    /// The window is about to close; setting `cancel` keeps it open. Otherwise no handler begins
    /// any more, and those under way run to their end without waiting or asking.
    virtual void Form_Unload(bool& /*cancel*/) {}
};

} // namespace tessarin
