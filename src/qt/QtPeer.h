#pragma once

#include "toolkit/Control.h"

#include <QWidget>

class QKeyEvent;

namespace tessarin::qt {

class QtForm;

/// The widget's side of a control: every widget of a control inherits it beside its Qt class.
class QtPeer : public ControlPeer {
public:
    void Changed(Property property) override;

    /// Moves the widget, and shows or hides it according to the control's Visible. Directly in the
    /// client, a widget that lies mostly beyond its right edge stays hidden: with a thin window
    /// frame its edge would show, and Tab would stop at it.
    void Place();
    /// Whether the key clicks the control: it is its caption or one of its shortcuts.
    bool IsClickedBy(const QKeyEvent& key) const;

protected:
    /// Gives `widget`, which is this object, the properties of `control`, except the texts: a
    /// screen reader may ask for the whole object as soon as it has a name.
    QtPeer(Control& control, QWidget& widget);

    virtual void ShowCaption() { mWidget.update(); }

    Control& mControl;
    QtForm& mForm;

private:
    QWidget& mWidget;
};

} // namespace tessarin::qt
