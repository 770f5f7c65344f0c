#include "support/modWait.h"

#include "platform/Platform.h"

namespace tessarin {

void Wait(int milliseconds) {
    PumpEvents();
    if (milliseconds <= 0) return;
    Platform::Current().Sleep(milliseconds);
    PumpEvents();
}

} // namespace tessarin
