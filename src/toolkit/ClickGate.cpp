#include "toolkit/ClickGate.h"

#include "toolkit/Control.h"
#include "toolkit/Door.h"
#include "toolkit/ScopedValue.h"

namespace tessarin {

void ClickGate::Raise(Control& control) {
    if (mbClosed) return;
    mWaiting.push_back(&control);
    while (!mWaiting.empty() && mlDepth < MaxDepth) {
        const Control& next = *mWaiting.front();
        mWaiting.pop_front();
        if (!next.Click || !next.Reachable()) continue;
        const ScopedValue<int> deeper(mlDepth, mlDepth + 1);
        Enter(next.Click);
    }
}

void ClickGate::Close() {
    mbClosed = true;
    mWaiting.clear();
}

} // namespace tessarin
