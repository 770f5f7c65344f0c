#include "toolkit/Form.h"

#include "platform/ScopedValue.h"

#include <utility>

namespace tessarin {

Form::Form(Toolkit& toolkit, ControlProperties properties, float minClientHeight)
    : Control(toolkit, *this, nullptr, std::move(properties)),
      MinClientHeight(minClientHeight),
      mFormPeer(CreatePeer(*this)) {}

void Form::RaiseActivate() {
    if (mbActivating || !Activate) return;
    const ScopedValue<bool> activating(mbActivating, true);
    RunAndReportErrors(Activate);
}

bool Form::RaiseUnload() {
    bool cancel = false;
    if (Unload) RunAndReportErrors([&] { Unload(cancel); });
    if (!cancel) Gate.Close();
    return !cancel;
}

} // namespace tessarin
