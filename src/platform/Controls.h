// The kinds of control that a window is made of.
#pragma once

#include "platform/Control.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace tessarin {

/// A text, or a coloured field with a text in it.
class Label : public Control {
public:
    Label(Control& container, Design design)
        : Control(ControlKind::Label, container, std::move(design)) {}
};

class CommandButton : public Control {
public:
    CommandButton(Control& container, Design design)
        : Control(ControlKind::CommandButton, container, std::move(design)) {}
};

/// One of several options in the same container, of which one is selected. Clicking it runs Click
/// every time, also when it is selected already.
class OptionButton : public Control {
public:
    OptionButton(Control& container, Design design)
        : Control(ControlKind::OptionButton, container, std::move(design)) {}

    /// Selects the option and runs its Click at once, as a click of the user does.
    void Select() {
        Peer().Changed(Property::Selected);
        if (Click) Click();
    }
};

/// Holds other controls; disabling it disables all of them. Its BorderStyle gives it a border,
/// which makes room for the caption.
class Frame : public Control {
public:
    Frame(Control& container, Design design)
        : Control(ControlKind::Frame, container, std::move(design)) {}
};

/// A control made of other controls, which may choose its own size (Resized).
class UserControl : public Control {
public:
    UserControl(Control& container, Design design)
        : Control(ControlKind::UserControl, container, std::move(design)) {}
};

/// 32 by 32 pixels, row by row, each 0xAARRGGBB.
using Image = std::array<std::uint32_t, std::size_t{32} * 32>;

/// Shows an image.
class Picture : public Control {
public:
    Picture(Control& container, Design design)
        : Control(ControlKind::Picture, container, std::move(design)) {}

    const Image& Shown() const { return mImage; }
    void SetImage(const Image& image) { Assign(mImage, image, Property::Image); }

private:
    Image mImage{};
};

/// An entry of the menu bar (in the form) or of a menu (in another item). With entries of its own
/// it is a menu; with the caption "-" a separator line.
class MenuItem : public Control {
public:
    MenuItem(Control& container, Design design)
        : Control(ControlKind::MenuItem, container, std::move(design)) {}
};

/// Runs Tick every Interval milliseconds while enabled, whenever window events are handled; off
/// when created.
class Timer : public Control {
public:
    Timer(Control& container, Design design)
        : Control(ControlKind::Timer, container, std::move(design)) {
        SetEnabled(false);
    }

    std::function<void()> Tick;

    int Interval() const { return mlInterval; }
    void SetInterval(int milliseconds) { Assign(mlInterval, milliseconds, Property::Interval); }

private:
    int mlInterval = 0;
};

} // namespace tessarin
