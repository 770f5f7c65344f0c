#include "qt/QtPeer.h"

#include "qt/QtForm.h"
#include "qt/QtLook.h"

namespace tessarin::qt {

QtPeer::QtPeer(const Control& control, QWidget& widget, QtForm& form)
    : mControl(control), mWidget(widget), mForm(form) {
    mWidget.setObjectName(ToQt(control.Name()));
    mWidget.setGeometry(PixelRect(control.Properties()));
    mWidget.setFont(ToQt(control.Font()));
    mWidget.setToolTip(ToQt(control.Properties().ToolTipText));
    mWidget.setAccessibleName(ToQt(control.AccessibleName()));
    mForm.PlaceWidget(mWidget, control);
}

void QtPeer::SetFont() {
    mWidget.setFont(ToQt(mControl.Font()));
}

// Qt notifies screen readers even when the name is unchanged.
void QtPeer::SetAccessibleName() {
    if (const QString name = ToQt(mControl.AccessibleName()); name != mWidget.accessibleName())
        mWidget.setAccessibleName(name);
}

void QtPeer::Changed(Property property) {
    switch (property) {
    case Property::Bounds:
        mWidget.setGeometry(PixelRect(mControl.Properties()));
        mForm.PlaceWidget(mWidget, mControl);
        break;
    case Property::Caption:
        SetCaption();
        SetAccessibleName();
        LookChanged();
        break;
    case Property::AccessibleName:
        SetAccessibleName();
        break;
    case Property::ToolTipText:
        mWidget.setToolTip(ToQt(mControl.Properties().ToolTipText));
        SetAccessibleName();
        break;
    case Property::Font:
        SetFont();
        break;
    case Property::Visible:
        mForm.KeepFocus([this] { mForm.PlaceWidget(mWidget, mControl); });
        break;
    case Property::Enabled:
        mForm.KeepFocus([this] { mWidget.setEnabled(mControl.Enabled()); });
        break;
    default:
        LookChanged();
    }
}

} // namespace tessarin::qt
