#pragma once

#include <deque>

namespace tessarin {

class Control;

/// The one way by which the user's clicks reach their handlers. Handlers pump window events, so
/// clicks arrive inside handlers of other clicks; the gate lets only so many be under way at a time
/// and keeps the rest waiting in order, so that no flood of clicks exhausts the stack and none is
/// lost. Each click is judged when its turn comes: one whose control is disabled or hidden by then
/// is dropped, and so are all that are left when the window has closed.
class ClickGate {
public:
    static constexpr int MaxDepth = 16;

    /// Takes a click on `control` and runs its Click, now or when a handler under way has ended.
    void Raise(Control& control);
    /// Drops all clicks, those waiting and those to come.
    void Close();

private:
    std::deque<Control*> mWaiting;
    int mlDepth = 0;
    bool mbClosed = false;
};

} // namespace tessarin
