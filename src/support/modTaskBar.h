// The taskbar entry of a window.
#pragma once

namespace tessarin {

/// Gives the window with the native handle `windowHandle` an entry in the taskbar, or takes it
/// away, without flicker; afterwards it is shown and active.
void ShowInTaskBar(int windowHandle, bool show);

} // namespace tessarin
