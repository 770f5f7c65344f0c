// The kinds of control that a window is made of.
#pragma once

#include "toolkit/Control.h"

#include <functional>
#include <string>

namespace tessarin {

/// A text, or a coloured field with a text in it.
class Label : public Control {
public:
    Label(Control& container, Design design);

    /// Lets the arrow keys move on from this label of the grid. If the focus is in the grid, it
    /// moves here.
    void MakeCurrent() { Notify(Property::Current); }
};

class CommandButton : public Control {
public:
    CommandButton(Control& container, Design design);
};

/// One of several options in the same container, of which one is selected. Every click runs Click,
/// even if the option is selected already. Click must not pump window events: only then can the
/// gate let it pass at once, so that the choice takes effect as soon as it is seen.
class OptionButton : public Control {
public:
    OptionButton(Control& container, Design design);

    /// Selects the option and runs its Click at once, as a click of the user does.
    void Select();

    bool Waits() const override { return false; }
};

/// Holds other controls; disabling it disables all of them. BorderStyle adds a border with the
/// caption in its upper line.
class Frame : public Control {
public:
    Frame(Control& container, Design design);
};

/// A control made of other controls. It may correct its size in Resized.
class UserControl : public Control {
public:
    UserControl(Control& container, Design design);
};

/// Shows one of the pictures that the program carries.
class Picture : public Control {
public:
    Picture(Control& container, Design design);

    /// The file's name among the program's pictures.
    const std::string& File() const { return msFile; }
    void SetFile(const std::string& file) { Assign(msFile, file, Property::PictureFile); }

private:
    std::string msFile;
};

/// An entry of the menu bar (in the form) or of a menu (in another item). With entries of its own
/// it is a menu; with the caption "-" a separator line.
class MenuItem : public Control {
public:
    MenuItem(Form& form, Design design);
    MenuItem(MenuItem& menu, Design design);
};

/// While enabled, runs Tick every Interval milliseconds as part of the window events. Starts
/// disabled.
class Timer : public Control {
public:
    Timer(Control& container, Design design);

    std::function<void()> Tick;

    int Interval() const { return mlInterval; }
    void SetInterval(int milliseconds) { Assign(mlInterval, milliseconds, Property::Interval); }

    /// For the toolkit: the interval has passed. Ticks nest, because Tick may pump window events;
    /// those nested deeper than MaxDepth are dropped.
    void RaiseTick();

private:
    static constexpr int MaxDepth = 4;

    int mlInterval = 0;
    int mlDepth = 0; // ticks being handled
};

} // namespace tessarin
