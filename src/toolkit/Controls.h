// SPDX-License-Identifier: MIT
// The kinds of control in a window.
#pragma once

#include "toolkit/Control.h"
#include "toolkit/Properties.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace tessarin {

/// A control with a place in its container.
class PlacedControl : public Control {
public:
    float Left() const { return mPlace.Left; }
    float Top() const { return mPlace.Top; }
    float Width() const { return mPlace.Width; }
    float Height() const { return mPlace.Height; }
    void SetLeft(float left) { SetPart(mPlace.Left, left); }
    void SetTop(float top) { SetPart(mPlace.Top, top); }
    void SetWidth(float width) { SetPart(mPlace.Width, width); }
    void SetHeight(float height) { SetPart(mPlace.Height, height); }

    using Control::SetVisible;

protected:
    PlacedControl(Control& container, std::string name, const Bounds& place, bool visible)
        : Control(container, std::move(name), visible), mPlace(place) {}

    /// Called when the place or the size has changed. An override may correct them.
    virtual void BoundsChanged() {}

private:
    void SetPart(float& part, float value);

    Bounds mPlace;
};

/// A placed control that shows a text.
class TextControl : public PlacedControl {
public:
    const std::string& Caption() const { return msCaption; }
    void SetCaption(const std::string& text) { Assign(msCaption, text, Property::Texts); }
    const std::string& ToolTipText() const { return msToolTipText; }
    /// What a screen reader says: the name that was set, else the tool tip, else the caption.
    const std::string& AccessibleName() const;
    void SetAccessibleName(const std::string& name) {
        Assign(msAccessibleName, name, Property::Texts);
    }
    const FontStyle& Font() const { return mFont; }
    void SetFont(const FontStyle& font) { Assign(mFont, font, Property::Font); }

protected:
    template <class Properties>
    TextControl(Control& container, std::string name, const Properties& design, bool visible = true)
        : PlacedControl(container, std::move(name), design.Place, visible),
          msCaption(design.Caption),
          msToolTipText(design.ToolTipText),
          mFont(design.Font) {}

private:
    std::string msCaption;
    std::string msToolTipText;
    std::string msAccessibleName;
    FontStyle mFont;
};

/// A text, or a coloured field with a text in it.
class Label : public TextControl {
public:
    using Properties = LabelProperties;
    Label(Control& container, std::string name, const Properties& design);

    using Control::Click;

    const TextFlow Flow;
    const BorderStyle Border;
    const bool TabStop;
    const std::optional<GridCell> Cell;

    Color BackColor() const { return mBackColor; }
    void SetBackColor(Color color) { Assign(mBackColor, color, Property::Colors); }
    Color ForeColor() const { return mForeColor; }
    void SetForeColor(Color color) { Assign(mForeColor, color, Property::Colors); }

    /// Only for a label with a Cell: the arrow keys then move on from it. If the focus is in the
    /// grid, it moves here.
    void MakeCurrent() { mLabelPeer.MakeCurrent(); }

private:
    Color mBackColor;
    Color mForeColor;
    LabelPeer& mLabelPeer;
};

/// A button with its caption on it.
class CommandButton : public TextControl {
public:
    using Properties = CommandButtonProperties;
    CommandButton(Control& container, std::string name, const Properties& design);

    using Control::Click;
    using Control::SetEnabled;

    const std::string Shortcuts;
};

/// One of several options in the same container, of which one is selected. Every click runs Click,
/// even if the option is selected already. Click must not pump window events: only then can the
/// gate let it pass at once, so that the choice takes effect as soon as it is seen.
class OptionButton : public TextControl {
public:
    using Properties = OptionButtonProperties;
    OptionButton(Control& container, std::string name, const Properties& design);

    using Control::Click;

    /// Selects the option and runs its Click at once, also if it is disabled or hidden. Errors of
    /// the Click pass through.
    void Select();

    bool ClicksMayWait() const override { return false; }

private:
    OptionPeer& mOptionPeer;
};

/// Holds other controls; disabling it disables all of them.
class Frame : public TextControl {
public:
    Frame(Control& container, std::string name, const FrameProperties& design);

    using Control::SetEnabled;

    const BorderStyle Border;

    Color BackColor() const { return mBackColor; }
    void SetBackColor(Color color) { Assign(mBackColor, color, Property::Colors); }

private:
    Color mBackColor;
};

/// The frame of a control that is made of other controls.
using UserControl = Frame;

/// Shows one of the pictures that the program carries.
class Picture : public PlacedControl {
public:
    Picture(Control& container, std::string name, const PictureProperties& design);

    const std::string File;
};

/// An entry of the menu bar (in the form) or of a menu (in another item). With entries of its own
/// it is a menu; with the caption "-" a separator line.
class MenuItem : public Control {
public:
    /// `shortcuts` are as those of a button.
    MenuItem(Control& container, std::string name, std::string caption, std::string shortcuts = {});

    using Control::Click;
    using Control::SetEnabled;

    const std::string Caption;
    const std::string Shortcuts;
};

/// While enabled, runs Tick every Interval milliseconds as part of the window events. Starts
/// disabled.
class Timer : public Control {
public:
    Timer(Control& container, std::string name);

    using Control::SetEnabled;
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
