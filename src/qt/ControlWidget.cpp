// SPDX-License-Identifier: MIT
#include "qt/ControlWidget.h"

#include "qt/KeyboardFocus.h"
#include "qt/QtLook.h"
#include "qt/QtPlatform.h"

namespace tessarin::qt {

ControlWidget::ControlWidget(PlacedControl& control, QWidget& widget, const Site& site)
    : mControl(control),
      mWidget(widget),
      mClient(site.Client),
      mFocus(site.Focus),
      mPlatform(site.Platform) {}

void ControlWidget::ShowAll() {
    mWidget.setObjectName(ToQt(mControl.Name()));
    for (const Property property : {Property::Bounds, Property::Font, Property::Texts})
        Apply(property);
}

void ControlWidget::Place() {
    mWidget.setGeometry(Pixels(mControl.Left()), Pixels(mControl.Top()), Pixels(mControl.Width()),
                        Pixels(mControl.Height()));
    const bool inClient = mWidget.parentWidget() == &mClient;
    const bool beyond = inClient && mWidget.geometry().center().x() >= mClient.width();
    mFocus.SetVisible(mWidget, mControl.Visible() && !beyond);
}

void ControlWidget::Apply(Property property) {
    if (property == Property::Bounds || property == Property::Visible) Place();
    if (property == Property::Enabled) mFocus.SetEnabled(mWidget, mControl.Enabled());
}

void TextWidget::Apply(Property property) {
    ControlWidget::Apply(property);
    if (property == Property::Font) Widget().setFont(ToQt(mControl.Font()));
    if (property == Property::Colors) Widget().update();
    if (property != Property::Texts) return;
    ShowCaption();
    Widget().setToolTip(ToQt(mControl.ToolTipText()));
    // Qt notifies screen readers even when the name is unchanged.
    const QString name = ToQt(mControl.AccessibleName());
    if (name != Widget().accessibleName()) Widget().setAccessibleName(name);
}

} // namespace tessarin::qt
