#include "qt/QtPeer.h"

#include "qt/QtForm.h"
#include "qt/QtLook.h"
#include "qt/QtPlatform.h"

#include <QKeyEvent>

namespace tessarin::qt {

QtPeer::QtPeer(Control& control, QWidget& widget)
    : mControl(control), mForm(dynamic_cast<QtForm&>(*widget.window())), mWidget(widget) {
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
    const bool visible = look.Visible && !beyond;
    mForm.Focus().SetVisible(mWidget, visible);
}

bool QtPeer::IsClickedBy(const QKeyEvent& key) const {
    const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
    const QString caption = ToQt(mControl.Caption());
    if ((modifiers & ~Qt::ShiftModifier) == Qt::NoModifier && caption.size() == 1 &&
        caption.compare(key.text(), Qt::CaseInsensitive) == 0)
        return true;
    return Shortcuts(mControl).contains(QKeyCombination(modifiers, Qt::Key(key.key())));
}

void QtPeer::Changed(Property property) {
    mForm.Platform().ShowAtNextPump();
    switch (property) {
    case Property::Bounds:
    case Property::Visible:
        return Place();
    case Property::Texts:
        ShowCaption();
        mWidget.setToolTip(ToQt(mControl.Properties().ToolTipText));
        // Qt notifies screen readers even when the name is unchanged.
        if (const QString name = ToQt(mControl.AccessibleName()); name != mWidget.accessibleName())
            mWidget.setAccessibleName(name);
        return;
    case Property::Font:
        return mWidget.setFont(ToQt(mControl.Font()));
    case Property::Colors:
        return mWidget.update();
    case Property::Enabled:
        return mForm.Focus().SetEnabled(mWidget, mControl.Enabled());
    case Property::Interval: // of timers alone
        return;
    }
}

} // namespace tessarin::qt
