#pragma once

#include <functional>

namespace tessarin {

/// The door by which everything enters that the toolkit reports: clicks, timer ticks, activations,
/// requests to close. Runs `handler`. An error that it ends with stops here, because the toolkit's
/// event loop cannot be unwound, and goes to Platform::ReportError.
void Enter(const std::function<void()>& handler) noexcept;

} // namespace tessarin
