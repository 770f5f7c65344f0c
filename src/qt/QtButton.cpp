// SPDX-License-Identifier: MIT
#include "qt/QtButton.h"

#include "qt/QtLook.h"

#include <QKeyEvent>

namespace tessarin::qt {

QtCommandButton::QtCommandButton(CommandButton& button, const Site& site)
    : WidgetOf(button, site), mButton(button) {
    setFocusPolicy(Qt::TabFocus);
    setAutoDefault(true); // Enter presses it as Space does
    connect(this, &QAbstractButton::clicked, [&button] { button.RaiseClick(); });
}

bool QtCommandButton::IsClickedBy(const QKeyEvent& key) const {
    const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
    const QString caption = ToQt(mButton.Caption());
    if ((modifiers & ~Qt::ShiftModifier) == Qt::NoModifier && caption.size() == 1 &&
        caption.compare(key.text(), Qt::CaseInsensitive) == 0)
        return true;
    return Shortcuts(mButton.Shortcuts).contains(QKeyCombination(modifiers, Qt::Key(key.key())));
}

void QtCommandButton::ShowCaption() {
    setText(EscapeAmpersands(mButton.Caption()));
}

QtOption::QtOption(OptionButton& option, const Site& site)
    : WidgetOf(option, site), mOption(option) {
    setFocusPolicy(Qt::NoFocus);
    connect(this, &QAbstractButton::clicked, [&option] { option.RaiseClick(); });
    connect(this, &QAbstractButton::toggled,
            [this](bool selected) { setFocusPolicy(selected ? Qt::TabFocus : Qt::NoFocus); });
}

void QtOption::ShowCaption() {
    setText(EscapeAmpersands(mOption.Caption()));
}

} // namespace tessarin::qt
