// SPDX-License-Identifier: MIT
// Waiting while the window stays responsive.
#pragma once

#include <functional>

namespace tessarin {

/// Pumps window events, sleeps for `milliseconds` and pumps again. With 0 or less it only pumps,
/// once.
void Wait(int milliseconds = 5);

/// The same, but asks for the milliseconds after the first pump, whose handlers may change them.
void Wait(const std::function<int()>& milliseconds);

} // namespace tessarin
