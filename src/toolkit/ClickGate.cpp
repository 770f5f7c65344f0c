// SPDX-License-Identifier: MIT
#include "toolkit/ClickGate.h"

#include "platform/ScopedValue.h"
#include "toolkit/Control.h"

namespace tessarin {

void ClickGate::Raise(Control& control) {
    if (mbClosed) return;
    if (!control.ClicksMayWait()) {
        control.RunClick();
        return;
    }
    mWaiting.push_back(&control);
    while (!mWaiting.empty() && mlDepth < MaxDepth) {
        const Control& next = *mWaiting.front();
        mWaiting.pop_front();
        const ScopedValue<int> deeper(mlDepth, mlDepth + 1);
        next.RunClick();
    }
}

void ClickGate::Close() {
    mbClosed = true;
    mWaiting.clear();
}

} // namespace tessarin
