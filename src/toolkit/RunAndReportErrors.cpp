#include "toolkit/RunAndReportErrors.h"

#include "platform/Platform.h"

#include <exception>

namespace tessarin {

void RunAndReportErrors(const std::function<void()>& handler) noexcept {
    try {
        handler();
    } catch (const std::exception& error) {
        Platform::Current().ReportError(error.what());
    } catch (...) {
        Platform::Current().ReportError("an error of an unknown kind");
    }
}

} // namespace tessarin
