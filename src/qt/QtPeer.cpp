#include "qt/QtPeer.h"

#include "qt/QtForm.h"
#include "qt/QtLook.h"

namespace tessarin::qt {

QtPeer::QtPeer(Control& control, QWidget& widget, QtForm& form)
    : mControl(control), mForm(form), mWidget(widget) {
    mWidget.setObjectName(ToQt(control.Name()));
    mWidget.setFont(ToQt(control.Font()));
    Place();
}

void QtPeer::Place() {
    const ControlProperties& look = mControl.Properties();
    mWidget.setGeometry(Pixels(look.Left), Pixels(look.Top), Pixels(look.Width),
                        Pixels(look.Height));
    const bool inClient = mWidget.parentWidget() == &mForm.Client();
    const bool beyond = inClient && mWidget.geometry().center().x() >= mForm.Client().width();
    mWidget.setVisible(look.Visible && !beyond);
}

// Qt notifies screen readers even when the name is unchanged.
void QtPeer::ShowTexts() {
    ShowCaption();
    mWidget.setToolTip(ToQt(mControl.Properties().ToolTipText));
    if (const QString name = ToQt(mControl.AccessibleName()); name != mWidget.accessibleName())
        mWidget.setAccessibleName(name);
}

void QtPeer::Changed(Property property) {
    switch (property) {
    case Property::Bounds:
    case Property::Visible:
        return mForm.KeepFocus([this] { Place(); });
    case Property::Texts:
        return ShowTexts();
    case Property::Font:
        return mWidget.setFont(ToQt(mControl.Font()));
    case Property::Colors:
        return mWidget.update();
    case Property::Enabled:
        return mForm.KeepFocus([this] { mWidget.setEnabled(mControl.Enabled()); });
    case Property::Interval: // of timers alone
        return;
    }
}

} // namespace tessarin::qt
