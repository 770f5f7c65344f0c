// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/ClickGate.h"
#include "toolkit/Control.h"
#include "toolkit/Properties.h"

#include <functional>
#include <string>

namespace tessarin {

/// A window, hidden until Show. The program sets its size; the user cannot change it, unless the
/// desktop insists.
class Form : public Control {
public:
    Form(Toolkit& toolkit, std::string name, const FormProperties& design);

    const std::string Caption;
    const std::string Icon;
    const float MinClientHeight;

    /// The outer size in twips: border, title bar and menu bar included.
    float Width() const { return mWidth; }
    float Height() const { return mHeight; }
    void SetWidth(float width) { Assign(mWidth, width, Property::Bounds); }
    void SetHeight(float height) { Assign(mHeight, height, Property::Bounds); }

    /// Runs when the window has become active: at its start and whenever the user returns from
    /// another window, but not from the form's own boxes and dialogs.
    std::function<void()> Activate;
    /// Runs when the window is about to close; setting `cancel` keeps it open. After an error it
    /// closes unless `cancel` was set before.
    std::function<void(bool& cancel)> Unload;

    /// All clicks on the form's controls go through it.
    ClickGate Gate;

    void Show() { SetVisible(true); }
    /// Asks the window to close, as its close box does; Unload may refuse.
    void Close() { mFormPeer.Close(); }
    /// The native handle for the window-style calls of Platform.
    int Handle() { return mFormPeer.Handle(); }

    /// For the toolkit: the window has become active. Does nothing while Activate runs, which
    /// pumps events.
    void RaiseActivate();
    /// For the toolkit: the window is about to close. Returns whether it may; if so, no later click
    /// reaches its handler.
    bool RaiseUnload();

private:
    float mWidth = 0;
    float mHeight = 0;
    FormPeer& mFormPeer;
    bool mbActivating = false;
};

} // namespace tessarin
