#include "support/modTaskBar.h"

#include "platform/Platform.h"

namespace tessarin {

namespace {
constexpr int ExtendedStyle = -20;
constexpr int ApplicationWindow = 0x40000;
constexpr int CommandHide = 0;
constexpr int CommandShow = 5;

class UpdateLock {
public:
    explicit UpdateLock(Platform& platform) : mPlatform(platform) {
        mPlatform.LockWindowUpdate(mPlatform.GetDesktopWindow());
    }
    UpdateLock(const UpdateLock&) = delete;
    UpdateLock& operator=(const UpdateLock&) = delete;
    ~UpdateLock() { mPlatform.LockWindowUpdate(0); }

private:
    Platform& mPlatform;
};

} // namespace

void ShowInTaskBar(int windowHandle, bool show) {
    Platform& platform = Platform::Current();
    const UpdateLock lock(platform);
    platform.ShowWindow(windowHandle, CommandHide);
    const int style = platform.GetWindowLongA(windowHandle, ExtendedStyle);
    platform.SetWindowLongA(windowHandle, ExtendedStyle,
                            show ? style | ApplicationWindow : style & ~ApplicationWindow);
    platform.ShowWindow(windowHandle, CommandShow);
}

} // namespace tessarin
