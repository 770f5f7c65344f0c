#include "toolkit/Control.h"

#include "platform/Platform.h"
#include "toolkit/Form.h"

#include <exception>
#include <utility>

namespace tessarin {

Control::Control(Toolkit& toolkit, Form& form, Control* container, ControlProperties properties)
    : mToolkit(toolkit), mForm(form), mContainer(container), mProperties(std::move(properties)) {}

Control::Control(Control& container, ControlProperties properties)
    : Control(container.mToolkit, container.mForm, &container, std::move(properties)) {}

bool Control::Reachable() const {
    if (!Enabled() || !Visible()) return false;
    return mContainer == nullptr || mContainer->Reachable();
}

const std::string& Control::AccessibleName() const {
    if (!msAccessibleName.empty()) return msAccessibleName;
    return mProperties.ToolTipText.empty() ? mProperties.Caption : mProperties.ToolTipText;
}

void Control::RaiseClick() {
    mForm.Gate.Raise(*this);
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
