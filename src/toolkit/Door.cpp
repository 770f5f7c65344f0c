#include "toolkit/Door.h"

#include "platform/Platform.h"

#include <exception>

namespace tessarin {

void Enter(const std::function<void()>& handler) noexcept {
    try {
        handler();
    } catch (const std::exception& error) {
        Platform::Current().ReportError(error.what());
    } catch (...) {
        Platform::Current().ReportError("an error of an unknown kind");
    }
}

} // namespace tessarin
