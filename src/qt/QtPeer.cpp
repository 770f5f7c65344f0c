#include "qt/QtPeer.h"

#include "qt/QtForm.h"
#include "qt/QtLook.h"

namespace tessarin::qt {

QtPeer::QtPeer(Control& control, QWidget& widget, QtForm& form)
    : mControl(control), mForm(form), mWidget(widget) {
    mWidget.setObjectName(ToQt(control.Name()));
    mWidget.setFont(ToQt(control.Font()));
    mWidget.setToolTip(ToQt(control.Properties().ToolTipText));
    SetAccessibleName();
    Place();
}

void QtPeer::Place() {
    const ControlProperties& look = mControl.Properties();
    mWidget.setGeometry(PixelRect(look));
    const bool inClient = mWidget.parentWidget() == &mForm.Client();
    const bool beyond = inClient && mWidget.geometry().center().x() >= mForm.Client().width();
    mWidget.setVisible(look.Visible && !beyond);
}

// Qt notifies screen readers even when the name is unchanged.
void QtPeer::SetAccessibleName() {
    if (const QString name = ToQt(mControl.AccessibleName()); name != mWidget.accessibleName())
        mWidget.setAccessibleName(name);
}

void QtPeer::Changed(Property property) {
    switch (property) {
    case Property::Bounds:
        Place();
        break;
    case Property::Caption:
        ShowCaption();
        SetAccessibleName();
        break;
    case Property::AccessibleName:
        SetAccessibleName();
        break;
    case Property::ToolTipText:
        mWidget.setToolTip(ToQt(mControl.Properties().ToolTipText));
        SetAccessibleName();
        break;
    case Property::Font:
        mWidget.setFont(ToQt(mControl.Font()));
        break;
    case Property::Look:
        mWidget.update();
        break;
    case Property::Visible:
        mForm.KeepFocus([this] { Place(); });
        break;
    case Property::Enabled:
        mForm.KeepFocus([this] { mWidget.setEnabled(mControl.Enabled()); });
        break;
    case Property::Interval: // of timers alone
        break;
    }
}

} // namespace tessarin::qt
