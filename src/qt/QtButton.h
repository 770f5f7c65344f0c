// SPDX-License-Identifier: MIT
// The buttons. They report every click, also on an option that is selected already.
#pragma once

#include "qt/ControlWidget.h"

#include <QPushButton>
#include <QRadioButton>

class QKeyEvent;

namespace tessarin::qt {

class QtCommandButton : public WidgetOf<QPushButton>, public ControlPeer {
public:
    QtCommandButton(CommandButton& button, const Site& site);

    void Changed(Property property) override { Apply(property); }
    /// Whether the key clicks the button: it is the whole caption or one of the shortcuts.
    bool IsClickedBy(const QKeyEvent& key) const;

protected:
    void ShowCaption() override;

private:
    const CommandButton& mButton;
};

/// The Tab key stops at the selected option, also when the mouse has selected it.
class QtOption : public WidgetOf<QRadioButton>, public OptionPeer {
public:
    QtOption(OptionButton& option, const Site& site);

    void Changed(Property property) override { Apply(property); }
    void Select() override { setChecked(true); }

protected:
    void ShowCaption() override;
    // Can be clicked in its whole rectangle, not only on circle and text.
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

private:
    const OptionButton& mOption;
};

} // namespace tessarin::qt
