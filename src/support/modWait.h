// Waiting while the window stays responsive.
#pragma once

#include <functional>

namespace tessarin {

/// Pumps waiting window events, sleeps for so many milliseconds and pumps again. With 0 or less it
/// only pumps, once.
void Wait(int milliseconds = 5);

/// The same for a time that may be changed by what the first pump handles.
void Wait(const std::function<int()>& milliseconds);

} // namespace tessarin
