#include "platform/ClickGate.h"

#include "platform/Control.h"

#include <exception>

namespace tessarin {

void ClickGate::Raise(Control& control) {
    if (mbClosed) return;
    mWaiting.push_back(&control);
    while (!mWaiting.empty() && mlDepth < MaxDepth) {
        Control& next = *mWaiting.front();
        mWaiting.pop_front();
        if (!next.Click || !next.Reachable()) continue;
        ++mlDepth;
        try {
            next.Click();
        } catch (const std::exception&) {
            // A command that fails reports nothing, and no error may unwind the toolkit's event
            // loop, inside which this command runs.
        }
        --mlDepth;
    }
}

void ClickGate::Close() {
    mbClosed = true;
    mWaiting.clear();
}

} // namespace tessarin
