#include "toolkit/Controls.h"

#include "platform/ScopedValue.h"

namespace tessarin {

void OptionButton::Select() {
    Peer().Select();
    if (Click) Click();
}

Timer::Timer(Control& container, ControlProperties properties)
    : Control(container, std::move(properties)) {
    CreatePeer(*this);
    SetEnabled(false);
}

void Timer::RaiseTick() {
    if (mlDepth >= MaxDepth || !Tick) return;
    const ScopedValue<int> deeper(mlDepth, mlDepth + 1);
    RunAndReportErrors(Tick);
}

} // namespace tessarin
