#pragma once

#include "toolkit/ClickGate.h"
#include "toolkit/Control.h"

#include <functional>

namespace tessarin {

/// A window with a fixed border. Width and Height are its outer size: border, title bar and menu
/// bar included. Hidden until Show.
class Form : public Control {
public:
    /// `minClientHeight` is the least visible height below the menu bar, in twips, however thick
    /// the border is.
    Form(Toolkit& toolkit, ControlProperties properties, float minClientHeight = 0);

    /// Runs when the window has become active: at its start and whenever the user returns from
    /// another window, but not from the form's own boxes and dialogs.
    std::function<void()> Activate;
    /// Runs when the window is about to close; setting `cancel` keeps it open. After an error it
    /// closes unless `cancel` was set before.
    std::function<void(bool& cancel)> Unload;

    /// All clicks on the form's controls go through it.
    ClickGate Gate;
    const float MinClientHeight;

    void Show() { SetVisible(true); }
    /// Asks the window to close, as its close box does; Unload may refuse.
    void Close() { mFormPeer.Close(); }
    /// The native handle for the window-style calls of Platform.
    int Handle() { return mFormPeer.Handle(); }

    /// For the toolkit: the window has become active. Ignores re-entrant activations: Activate
    /// pumps events.
    void RaiseActivate();
    /// For the toolkit: the window is about to close. Returns whether it may; if so, no later click
    /// reaches its handler.
    bool RaiseUnload();

private:
    FormPeer& mFormPeer;
    bool mbActivating = false;
};

} // namespace tessarin
