// The kinds of control that a window is made of.
#pragma once

#include "toolkit/Control.h"

#include <functional>
#include <utility>

namespace tessarin {

/// A control with nothing but what all controls have.
template <Kind KindOfControl>
class PlainControl : public Control {
public:
    PlainControl(Control& container, ControlProperties properties)
        : Control(container, std::move(properties)) {
        CreatePeer(*this, KindOfControl);
    }
};
/// A button with its caption on it.
using CommandButton = PlainControl<Kind::CommandButton>;
/// Holds other controls; disabling it disables all of them. A border has the caption in its upper
/// line.
using Frame = PlainControl<Kind::Frame>;
/// An entry of the menu bar (in the form) or of a menu (in another item). With entries of its own
/// it is a menu; with the caption "-" a separator line. It has caption, shortcuts and Enabled, and
/// is always visible.
using MenuItem = PlainControl<Kind::MenuItem>;
/// Shows one of the pictures that the program carries.
using Picture = PlainControl<Kind::Picture>;
/// A frame that is made of other controls. It may correct its size in BoundsChanged.
using UserControl = Frame;

/// A text, or a coloured field with a text in it.
class Label : public PlainControl<Kind::Label> {
public:
    using PlainControl::PlainControl;

    /// Lets the arrow keys move on from this label of the grid. If the focus is in the grid, it
    /// moves here.
    void MakeCurrent() { Peer().MakeCurrent(); }
};

/// One of several options in the same container, of which one is selected. Every click runs Click,
/// even if the option is selected already. Click must not pump window events: only then can the
/// gate let it pass at once, so that the choice takes effect as soon as it is seen.
class OptionButton : public PlainControl<Kind::OptionButton> {
public:
    using PlainControl::PlainControl;

    /// Selects the option and runs its Click at once, also if it is disabled or hidden. Errors of
    /// the Click pass through.
    void Select();

    bool ClicksMayWait() const override { return false; }
};

/// While enabled, runs Tick every Interval milliseconds as part of the window events. Starts
/// disabled.
class Timer : public Control {
public:
    Timer(Control& container, ControlProperties properties);

    std::function<void()> Tick;

    int Interval() const { return mlInterval; }
    void SetInterval(int milliseconds) { Assign(mlInterval, milliseconds, Property::Interval); }

    /// For the toolkit: the interval has passed. Ticks nest, because Tick may pump window events;
    /// those nested more than four deep are dropped.
    void RaiseTick();

private:
    static constexpr int MaxDepth = 4;

    int mlInterval = 0;
    int mlDepth = 0; // ticks being handled
};

} // namespace tessarin
