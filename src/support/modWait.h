// Waiting while the window stays responsive.
#pragma once

namespace tessarin {

/// Pumps waiting window events, sleeps for so many milliseconds and pumps again. With 0 or less it
/// only pumps, once.
void Wait(int milliseconds = 5);

} // namespace tessarin
