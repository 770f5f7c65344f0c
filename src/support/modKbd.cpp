// SPDX-License-Identifier: MIT
#include "support/modKbd.h"

#include "platform/Platform.h"

namespace tessarin {

bool gbCancel = false;

void ClearCancel() {
    gbCancel = false;
}

void SetCancel() {
    gbCancel = true;
}

bool CancelRequested() {
    if (gbCancel) return true;
    Platform& platform = Platform::Current();
    if (!platform.EscPressed()) return false;
    const auto answer = platform.ShowMessage(
        {.Prompt = "Abbrechen?", .Title = "ESC gedrückt", .ButtonSet = Message::Buttons::YesNo});
    if (answer != Message::Answer::Yes) return false;
    SetCancel();
    return true;
}

} // namespace tessarin
