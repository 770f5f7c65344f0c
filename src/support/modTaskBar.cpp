#include "support/modTaskBar.h"

#include "platform/AtScopeEnd.h"
#include "platform/Platform.h"

namespace tessarin {

namespace {
constexpr int ExtendedStyle = -20;
constexpr int ApplicationWindow = 0x40000;
constexpr int CommandHide = 0;
constexpr int CommandShow = 5;
} // namespace

void ShowInTaskBar(int windowHandle, bool show) {
    Platform& platform = Platform::Current();
    platform.LockWindowUpdate(platform.GetDesktopWindow());
    const AtScopeEnd unlock([&] { platform.LockWindowUpdate(0); });
    platform.ShowWindow(windowHandle, CommandHide);
    const int style = platform.GetWindowLongA(windowHandle, ExtendedStyle);
    platform.SetWindowLongA(windowHandle, ExtendedStyle,
                            show ? style | ApplicationWindow : style & ~ApplicationWindow);
    platform.ShowWindow(windowHandle, CommandShow);
}

} // namespace tessarin
