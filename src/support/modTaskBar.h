// The taskbar entry of a window.
#pragma once

namespace tessarin {

/// Gives the window with the native handle `windowHandle` an entry in the taskbar, or takes it
/// away. The window is hidden and shown for it, without flicker; afterwards it is active.
void ShowInTaskBar(int windowHandle, bool show);

} // namespace tessarin
