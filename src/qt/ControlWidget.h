// SPDX-License-Identifier: MIT
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

/// What the widgets of placed controls have in common: see WidgetOf.
class ControlWidget {
public:
    virtual ~ControlWidget() = default;

    /// Shows the control as it is now. No constructor calls this: as soon as a widget has a name, a
    /// screen reader may ask for all of it.
    void ShowAll();

    /// Moves the widget, and shows or hides it according to the control's Visible. Directly in the
    /// client, a widget that lies mostly beyond its right edge stays hidden: with a thin window
    /// frame its edge would show, and Tab would stop at it.
    void Place();

protected:
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

/// The same for controls with a text.
class TextWidget : public ControlWidget {
protected:
    TextWidget(TextControl& control, QWidget& widget, const Site& site)
        : ControlWidget(control, widget, site), mControl(control) {}

    void Apply(Property property) override;
    virtual void ShowCaption() { Widget().update(); }

private:
    const TextControl& mControl;
};

/// A widget of the class QtClass that shows a placed control.
template <class QtClass, class Common = TextWidget>
class WidgetOf : public QtClass, public Common {
protected:
    WidgetOf(auto& control, const Site& site)
        : QtClass(&site.Parent), Common(control, *this, site) {}
};

} // namespace tessarin::qt
