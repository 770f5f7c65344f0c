#include "support/modWait.h"

#include "platform/Platform.h"

namespace tessarin {

void Wait(int milliseconds) {
    Wait([milliseconds] { return milliseconds; });
}

void Wait(const std::function<int()>& milliseconds) {
    PumpEvents(Pump::Now);
    const int left = milliseconds();
    if (left <= 0) return;
    Platform::Current().Sleep(left);
    PumpEvents(Pump::Now);
}

} // namespace tessarin
