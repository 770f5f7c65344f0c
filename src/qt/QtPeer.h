#pragma once

#include "toolkit/Control.h"

#include <QWidget>

namespace tessarin::qt {

class QtForm;

/// The peer of a control that is a widget of its own.
class QtPeer : public ControlPeer {
public:
    void Changed(Property property) override;

protected:
    /// Gives `widget` the design of `control`.
    QtPeer(const Control& control, QWidget& widget, QtForm& form);

    virtual void SetCaption() {}
    virtual void SetFont();
    /// Repaints what the widget paints itself.
    virtual void LookChanged() { mWidget.update(); }

private:
    void SetAccessibleName();

    const Control& mControl;
    QWidget& mWidget;
    QtForm& mForm;
};

} // namespace tessarin::qt
