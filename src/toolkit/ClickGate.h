// SPDX-License-Identifier: MIT
#pragma once

#include <deque>

namespace tessarin {

class Control;

/// Passes the user's clicks to their handlers, in the order in which they come. Handlers pump
/// window events, so clicks arrive while handlers of other clicks are running. The gate limits how
/// deep handlers nest, and lets the other clicks wait: a flood of clicks neither exhausts the stack
/// nor gets lost.
class ClickGate {
public:
    /// The number of handlers that may run inside one another.
    static constexpr int MaxDepth = 16;

    /// Runs the Click of `control`: at once, or after a running handler has ended. The control must
    /// live until then. If it is disabled or hidden by then, the click is dropped. A control whose
    /// Click pumps nothing (Control::ClicksMayWait is false) never waits.
    void Raise(Control& control);
    /// Drops all waiting and future clicks.
    void Close();

private:
    std::deque<Control*> mWaiting;
    int mlDepth = 0; // handlers running
    bool mbClosed = false;
};

} // namespace tessarin
