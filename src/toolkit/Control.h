// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/Toolkit.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace tessarin {

class Form;

/// One control of a window. It keeps its properties and tells the toolkit only of those that really
/// change, so setting an equal value costs nothing.
class Control {
public:
    virtual ~Control() = default;

    const std::string& Name() const { return msName; }
    /// The control around this one; nullptr for a form.
    Control* Container() const { return mContainer; }

    bool Enabled() const { return mbEnabled; }
    /// The control's own flag: a hidden container hides it all the same.
    bool Visible() const { return mbVisible; }
    /// Whether a click counts: the control and all its containers are enabled and visible.
    bool Reachable() const;

    /// The toolkit's side of the control.
    ControlPeer& Peer() const { return *mPeer; }

    /// For the toolkit: the user has clicked the control.
    void RaiseClick();
    /// For the gate: runs Click, unless the control is not reachable any more.
    void RunClick() const;
    /// Whether clicks on this control may wait in the gate's queue.
    virtual bool ClicksMayWait() const { return true; }

    /// Runs `handler` for something that the toolkit reports: a click, a timer tick, an activation
    /// or a request to close. All of them enter here, because an exception must not unwind the
    /// toolkit's event loop: it goes to Platform::ReportError instead.
    static void RunAndReportErrors(const std::function<void()>& handler) noexcept;

protected:
    // Click, SetEnabled and SetVisible are public in the kinds of control that have them.

    /// Runs when the user clicks, through the form's gate.
    std::function<void()> Click;
    void SetEnabled(bool enabled) { Assign(mbEnabled, enabled, Property::Enabled); }
    void SetVisible(bool visible) { Assign(mbVisible, visible, Property::Visible); }

    /// A form, hidden.
    Control(Toolkit& toolkit, Form& form, std::string name);
    Control(Control& container, std::string name, bool visible);

    Toolkit& Kit() { return mToolkit; }
    /// Takes the peer. Every kind of control calls it once, in its constructor.
    template <class PeerOfKind>
    PeerOfKind& Own(std::unique_ptr<PeerOfKind> peer) {
        PeerOfKind& owned = *peer;
        mPeer = std::move(peer);
        return owned;
    }

    template <class T>
    void Assign(T& member, const T& value, Property property) {
        if (member == value) return;
        member = value;
        mPeer->Changed(property);
    }

private:
    Toolkit& mToolkit;
    Form& mForm;
    Control* mContainer;
    std::string msName;
    bool mbEnabled = true;
    bool mbVisible;
    std::unique_ptr<ControlPeer> mPeer;
};

} // namespace tessarin
