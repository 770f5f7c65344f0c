// SPDX-License-Identifier: MIT
#include "support/modTaskBar.h"

#include "platform/AtScopeEnd.h"
#include "platform/Platform.h"

namespace tessarin {

void ShowInTaskBar(int windowHandle, bool show) {
    Platform& platform = Platform::Current();
    platform.LockWindowUpdate(platform.GetDesktopWindow());
    const AtScopeEnd unlock([&] { platform.LockWindowUpdate(0); });
    platform.ShowWindow(windowHandle, Platform::HideCommand);
    int style = platform.GetWindowLongA(windowHandle, Platform::ExtendedStyle);
    if (show)
        style |= Platform::ApplicationWindowBit;
    else
        style &= ~Platform::ApplicationWindowBit;
    platform.SetWindowLongA(windowHandle, Platform::ExtendedStyle, style);
    platform.ShowWindow(windowHandle, Platform::ShowCommand);
}

} // namespace tessarin
