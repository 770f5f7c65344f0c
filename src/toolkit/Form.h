#pragma once

#include "toolkit/ClickGate.h"
#include "toolkit/Control.h"

#include <string>

namespace tessarin {

/// What a form has besides the properties of every control.
struct FormDesign {
    /// The name of its icon among the program's pictures; there is one file "name-size.png" for
    /// each size.
    std::string Icon = {};
    /// The least visible height below the menu bar, in twips, however thick the border is.
    float MinClientHeight = 0;
};

/// A window with a fixed border. Width and Height are its outer size: border, title bar and menu
/// bar included. Hidden until Show.
class Form : public Control {
public:
    Form(Toolkit& toolkit, Design design, FormDesign formDesign);

    /// All clicks on the form's controls go through it.
    ClickGate Gate;

    const FormDesign& FormProperties() const { return mFormProperties; }

    void Show() { SetVisible(true); }
    /// Asks the window to close, as its close box does; Form_Unload may refuse.
    void Unload() { mFormPeer->Close(); }
    /// The native handle for the window-style calls of Platform.
    int Handle() { return mFormPeer->Handle(); }

    /// The window has become active: at its start and whenever the user returns from another
    /// window, but not from the form's own boxes and dialogs.
    virtual void Form_Activate() {}
    /// The window is about to close; setting `cancel` keeps it open.
    virtual void Form_Unload(bool& /*cancel*/) {}

    /// For the toolkit: the window has become active. Ignores re-entrant activations:
    /// Form_Activate pumps events.
    void RaiseActivate();
    /// For the toolkit: the window is about to close. Returns whether it may; if so, no later click
    /// reaches its handler.
    bool RaiseUnload();

private:
    FormDesign mFormProperties;
    FormPeer* mFormPeer = nullptr; // owned by the control
    bool mbActivating = false;
};

} // namespace tessarin
