#pragma once

#include <deque>

namespace tessarin {

class Control;

/// The way by which the user's clicks reach their handlers. Handlers pump window events, so clicks
/// arrive while handlers of other clicks are running. The gate limits how many handlers are nested
/// and keeps the other clicks waiting in order: a flood of clicks neither exhausts the stack nor
/// gets lost. A click whose control is disabled or hidden when its turn comes is dropped. Controls
/// whose handlers pump nothing (Control::Waits) pass at once.
class ClickGate {
public:
    static constexpr int MaxDepth = 16;

    /// Runs the Click of `control`, at once or when a handler that is running has ended.
    void Raise(Control& control);
    /// Drops all clicks, those waiting and those to come.
    void Close();

private:
    static void Run(const Control& control);

    std::deque<Control*> mWaiting;
    int mlDepth = 0; // handlers running
    bool mbClosed = false;
};

} // namespace tessarin
