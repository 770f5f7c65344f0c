#pragma once

#include "toolkit/Controls.h"

#include <QWidget>

namespace tessarin::qt {

class KeyboardFocus;
class QtPlatform;

/// Where a new widget belongs.
struct Site {
    QWidget& Parent;
    QWidget& Client; ///< holds all controls of the form
    KeyboardFocus& Focus;
    QtPlatform& Platform;
};

/// What the widgets of placed controls have in common. Each inherits it beside its Qt class and its
/// kind of peer.
class ControlWidget {
public:
    virtual ~ControlWidget() = default;

    /// Moves the widget, and shows or hides it according to the control's Visible. Directly in the
    /// client, a widget that lies mostly beyond its right edge stays hidden: with a thin window
    /// frame its edge would show, and Tab would stop at it.
    void Place();

protected:
    /// `widget` is this object.
    ControlWidget(PlacedControl& control, QWidget& widget, const Site& site);

    /// Shows the property as it is now.
    virtual void Apply(Property property);

    QWidget& Widget() { return mWidget; }
    KeyboardFocus& Focus() { return mFocus; }
    QtPlatform& Platform() { return mPlatform; }

private:
    const PlacedControl& mControl;
    QWidget& mWidget;
    const QWidget& mClient;
    KeyboardFocus& mFocus;
    QtPlatform& mPlatform;
};

/// The same of controls with a text.
class TextWidget : public ControlWidget {
protected:
    /// Sets no texts: its maker does, by Changed(Property::Texts), when the object is complete. A
    /// screen reader may ask for all of it as soon as it has a name.
    TextWidget(TextControl& control, QWidget& widget, const Site& site);

    void Apply(Property property) override;
    virtual void ShowCaption() { Widget().update(); }

private:
    const TextControl& mControl;
};

} // namespace tessarin::qt
