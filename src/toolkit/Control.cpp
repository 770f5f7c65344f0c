#include "toolkit/Control.h"

#include "toolkit/Form.h"

#include <utility>

namespace tessarin {

Control::Control(Toolkit& toolkit, Form& form, ControlProperties properties)
    : mToolkit(toolkit), mForm(form), mContainer(nullptr), mProperties(std::move(properties)) {}

Control::Control(Control& container, ControlProperties properties)
    : mToolkit(container.mToolkit),
      mForm(container.mForm),
      mContainer(&container),
      mProperties(std::move(properties)) {}

void Control::MoveTo(const Control& other) {
    SetLeft(other.Left());
    SetTop(other.Top());
}

void Control::SizeLike(const Control& other) {
    SetWidth(other.Width());
    SetHeight(other.Height());
}

bool Control::Reachable() const {
    if (!Enabled() || !Visible()) return false;
    return mContainer == nullptr || mContainer->Reachable();
}

const std::string& Control::AccessibleName() const {
    if (!mAccessibleName.empty()) return mAccessibleName;
    return mProperties.ToolTipText.empty() ? mProperties.Caption : mProperties.ToolTipText;
}

void Control::RaiseClick() {
    mForm.Gate.Raise(*this);
}

} // namespace tessarin
