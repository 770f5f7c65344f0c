// SPDX-License-Identifier: MIT
#include "toolkit/Control.h"

#include "platform/Platform.h"
#include "toolkit/Form.h"

#include <exception>

namespace tessarin {

Control::Control(Toolkit& toolkit, Form& form, std::string name)
    : mToolkit(toolkit),
      mForm(form),
      mContainer(nullptr),
      msName(std::move(name)),
      mbVisible(false) {}

Control::Control(Control& container, std::string name, bool visible)
    : mToolkit(container.mToolkit),
      mForm(container.mForm),
      mContainer(&container),
      msName(std::move(name)),
      mbVisible(visible) {}

bool Control::Reachable() const {
    if (!Enabled() || !Visible()) return false;
    return mContainer == nullptr || mContainer->Reachable();
}

void Control::RaiseClick() {
    mForm.Gate.Raise(*this);
}

void Control::RunClick() const {
    if (Click && Reachable()) RunAndReportErrors(Click);
}

void Control::RunAndReportErrors(const std::function<void()>& handler) noexcept {
    try {
        handler();
    } catch (const std::exception& error) {
        Platform::Current().ReportError(error.what());
    } catch (...) {
        Platform::Current().ReportError("an error of an unknown kind");
    }
}

} // namespace tessarin
