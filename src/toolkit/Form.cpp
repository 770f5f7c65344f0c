// SPDX-License-Identifier: MIT
#include "toolkit/Form.h"

#include "platform/ScopedValue.h"

#include <utility>

namespace tessarin {

Form::Form(Toolkit& toolkit, std::string name, const FormProperties& design)
    : Control(toolkit, *this, std::move(name)),
      Caption(design.Caption),
      Icon(design.Icon),
      MinClientHeight(design.MinClientHeight),
      mFormPeer(Own(Kit().Create(*this))) {}

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
