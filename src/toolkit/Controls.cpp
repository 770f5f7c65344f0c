// SPDX-License-Identifier: MIT
#include "toolkit/Controls.h"

#include "platform/ScopedValue.h"

namespace tessarin {

void PlacedControl::SetPart(float& part, float value) {
    if (part == value) return;
    part = value;
    Peer().Changed(Property::Bounds);
    BoundsChanged();
}

const std::string& TextControl::AccessibleName() const {
    if (!msAccessibleName.empty()) return msAccessibleName;
    return msToolTipText.empty() ? msCaption : msToolTipText;
}

Label::Label(Control& container, std::string name, const Properties& design)
    : TextControl(container, std::move(name), design, design.Visible),
      Flow(design.Flow),
      Border(design.Border),
      TabStop(design.TabStop),
      Cell(design.Cell),
      mBackColor(design.BackColor),
      mForeColor(design.ForeColor),
      mLabelPeer(Own(Kit().Create(*this))) {}

CommandButton::CommandButton(Control& container, std::string name, const Properties& design)
    : TextControl(container, std::move(name), design), Shortcuts(design.Shortcuts) {
    Own(Kit().Create(*this));
}

OptionButton::OptionButton(Control& container, std::string name, const Properties& design)
    : TextControl(container, std::move(name), design), mOptionPeer(Own(Kit().Create(*this))) {}

void OptionButton::Select() {
    mOptionPeer.Select();
    if (Click) Click();
}

Frame::Frame(Control& container, std::string name, const FrameProperties& design)
    : TextControl(container, std::move(name), design),
      Border(design.Border),
      mBackColor(design.BackColor) {
    Own(Kit().Create(*this));
}

Picture::Picture(Control& container, std::string name, const PictureProperties& design)
    : PlacedControl(container, std::move(name), design.Place, design.Visible), File(design.File) {
    Own(Kit().Create(*this));
}

MenuItem::MenuItem(Control& container, std::string name, std::string caption, std::string shortcuts)
    : Control(container, std::move(name), true),
      Caption(std::move(caption)),
      Shortcuts(std::move(shortcuts)) {
    Own(Kit().Create(*this));
}

Timer::Timer(Control& container, std::string name) : Control(container, std::move(name), true) {
    Own(Kit().Create(*this));
    SetEnabled(false);
}

void Timer::RaiseTick() {
    if (mlDepth >= MaxDepth || !Tick) return;
    const ScopedValue<int> deeper(mlDepth, mlDepth + 1);
    RunAndReportErrors(Tick);
}

} // namespace tessarin
