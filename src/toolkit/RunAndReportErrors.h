#pragma once

#include <functional>

namespace tessarin {

/// Runs `handler` for something that the toolkit reports: a click, a timer tick, an activation or a
/// request to close. All of them enter here, because an exception must not unwind the toolkit's
/// event loop: it goes to Platform::ReportError instead.
void RunAndReportErrors(const std::function<void()>& handler) noexcept;

} // namespace tessarin
