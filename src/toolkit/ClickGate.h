#pragma once

#include <deque>

namespace tessarin {

class Control;

/// Passes the user's clicks to their handlers. Handlers pump window events, so clicks arrive while
/// handlers of other clicks are running. The gate limits how deep handlers nest and queues the
/// other clicks: a flood of clicks neither exhausts the stack nor gets lost. A click whose control
/// is disabled or hidden when its turn comes is dropped. Controls whose handlers pump nothing
/// (Control::ClicksMayWait is false) skip the queue. Controls must live as long as the gate.
class ClickGate {
public:
    static constexpr int MaxDepth = 16;

    /// Runs the Click of `control`, now or after a running handler has ended.
    void Raise(Control& control);
    /// Drops all waiting and future clicks.
    void Close();

private:
    std::deque<Control*> mWaiting;
    int mlDepth = 0; // handlers running
    bool mbClosed = false;
};

} // namespace tessarin
