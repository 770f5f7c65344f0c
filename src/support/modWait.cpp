// SPDX-License-Identifier: MIT
#include "support/modWait.h"

#include "platform/Platform.h"

namespace tessarin {

void Wait(int milliseconds) {
    Wait([milliseconds] { return milliseconds; });
}

void Wait(const std::function<int()>& milliseconds) {
    PumpEvents(Pump::Now);
    const int pause = milliseconds();
    if (pause <= 0) return;
    Platform::Current().Sleep(pause);
    PumpEvents(Pump::Now);
}

} // namespace tessarin
