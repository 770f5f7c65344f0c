#include "toolkit/Controls.h"

#include "platform/ScopedValue.h"
#include "toolkit/Door.h"
#include "toolkit/Form.h"

#include <utility>

namespace tessarin {

Label::Label(Control& container, Design design) : Control(container, std::move(design)) {
    Attach(Kit().Create(*this, container));
}

CommandButton::CommandButton(Control& container, Design design)
    : Control(container, std::move(design)) {
    Attach(Kit().Create(*this, container));
}

OptionButton::OptionButton(Control& container, Design design)
    : Control(container, std::move(design)) {
    Attach(Kit().Create(*this, container));
}

void OptionButton::Select() {
    Notify(Property::Selected);
    if (Click) Click();
}

Frame::Frame(Control& container, Design design) : Control(container, std::move(design)) {
    Attach(Kit().Create(*this, container));
}

UserControl::UserControl(Control& container, Design design)
    : Control(container, std::move(design)) {
    Attach(Kit().Create(*this, container));
}

Picture::Picture(Control& container, Design design) : Control(container, std::move(design)) {
    Attach(Kit().Create(*this, container));
}

MenuItem::MenuItem(Form& form, Design design) : Control(form, std::move(design)) {
    Attach(Kit().Create(*this, form));
}

MenuItem::MenuItem(MenuItem& menu, Design design) : Control(menu, std::move(design)) {
    Attach(Kit().Create(*this, menu));
}

Timer::Timer(Control& container, Design design) : Control(container, std::move(design)) {
    Attach(Kit().Create(*this));
    SetEnabled(false);
}

void Timer::RaiseTick() {
    if (mlDepth >= MaxDepth || !Tick) return;
    const ScopedValue<int> deeper(mlDepth, mlDepth + 1);
    Enter(Tick);
}

} // namespace tessarin
