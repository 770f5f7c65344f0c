// SPDX-License-Identifier: MIT
// The taskbar entry of a window.
#pragma once

namespace tessarin {

/// Adds the taskbar entry of the window with that native handle, or removes it, without flicker,
/// and shows and activates the window.
void ShowInTaskBar(int windowHandle, bool show);

} // namespace tessarin
