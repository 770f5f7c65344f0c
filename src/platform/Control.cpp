#include "platform/Control.h"

#include "platform/Form.h"

#include <utility>

namespace tessarin {

Control::Control(ControlKind kind, Toolkit& toolkit, Control* container, Design design)
    : mToolkit(toolkit),
      mContainer(container),
      mProperties(std::move(design)),
      mPeer(toolkit.CreatePeer(kind, *this, container)) {}

Control::Control(ControlKind kind, Control& container, Design design)
    : Control(kind, container.mToolkit, &container, std::move(design)) {}

Control::~Control() = default;

void Control::SetWidth(float width) {
    if (width == Width()) return;
    Assign(mProperties.Width, width, Property::Bounds);
    Resized();
}

void Control::SetHeight(float height) {
    if (height == Height()) return;
    Assign(mProperties.Height, height, Property::Bounds);
    Resized();
}

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

Form& Control::ParentForm() {
    Control* outermost = this;
    while (outermost->mContainer != nullptr)
        outermost = outermost->mContainer;
    return static_cast<Form&>(*outermost);
}

void Control::RaiseClick() {
    ParentForm().Gate.Raise(*this);
}

} // namespace tessarin
